#include "screens/wx/system_dialog.hpp"

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace qor::wx {

void cancel_system_dialog(wxDialog& dialog) {
    if (GTK_IS_DIALOG(dialog.GetHandle())) gtk_dialog_response(GTK_DIALOG(dialog.GetHandle()), GTK_RESPONSE_CANCEL);
}

}  // namespace qor::wx
