#pragma once

class wxDialog;

namespace qor::wx {

// Ends a dialog that the system draws as its Cancel button would.
void cancel_system_dialog(wxDialog& dialog);

}  // namespace qor::wx
