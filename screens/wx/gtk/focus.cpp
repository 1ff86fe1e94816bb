#include "screens/wx/focus.hpp"

#include <gtk/gtk.h>

namespace qor::wx {
namespace {

using Moved = std::function<void()>;

// After GTK's own handler, so that the window knows its new focus.
void on_set_focus(GtkWindow*, GtkWidget*, gpointer moved) {
    (*static_cast<Moved*>(moved))();
}

void forget(gpointer moved, GClosure*) {
    delete static_cast<Moved*>(moved);
}

}  // namespace

void watch_focus(wxDialog& dialog, std::function<void()> moved) {
    g_signal_connect_data(dialog.GetHandle(), "set-focus", G_CALLBACK(on_set_focus), new Moved(std::move(moved)),
                          forget, G_CONNECT_AFTER);
}

bool holds_focus(const wxDialog& dialog, const wxWindow& window) {
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(dialog.GetHandle()));
    return focus && (focus == window.GetHandle() || gtk_widget_is_ancestor(focus, window.GetHandle()));
}

}  // namespace qor::wx
