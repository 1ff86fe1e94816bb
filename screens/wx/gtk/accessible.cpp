#include "screens/wx/accessible.hpp"

#include <gtk/gtk.h>

namespace qor::wx {
namespace {

AtkObject* accessible(const wxWindow& window) {
    return gtk_widget_get_accessible(window.m_wxwindow ? window.m_wxwindow : window.GetHandle());
}

}  // namespace

void name_for_reader(wxWindow& window, const wxString& name) {
    atk_object_set_name(accessible(window), name.utf8_str());
}

void describe_to_reader(wxWindow& window, const wxString& description) {
    atk_object_set_description(accessible(window), description.utf8_str());
}

wxString reader_name(const wxWindow& window) {
    const char* name = atk_object_get_name(accessible(window));
    return name ? wxString::FromUTF8(name) : wxString();
}

}  // namespace qor::wx
