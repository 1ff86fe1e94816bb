#include "screens/wx/system_dialog.hpp"

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace qor::wx {
namespace {

gboolean on_key(GtkDialog* dialog, const GdkEventKey* event, gpointer) {
    if (event->keyval != GDK_KEY_F1) return FALSE;
    gtk_dialog_response(dialog, GTK_RESPONSE_HELP);
    return TRUE;
}

}  // namespace

void cancel_system_dialog(wxDialog& dialog) {
    if (GTK_IS_DIALOG(dialog.GetHandle())) gtk_dialog_response(GTK_DIALOG(dialog.GetHandle()), GTK_RESPONSE_CANCEL);
}

void press_help_on_f1(wxDialog& dialog) {
    if (GTK_IS_DIALOG(dialog.GetHandle())) {
        g_signal_connect(dialog.GetHandle(), "key-press-event", G_CALLBACK(on_key), nullptr);
    }
}

}  // namespace qor::wx
