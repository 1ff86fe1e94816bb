#pragma once

class wxDialog;

namespace qor::wx {

// Ends a dialog that the system draws as its Cancel button would.
void cancel_system_dialog(wxDialog& dialog);
// From now on F1 presses its Help button. The dialog must be shown.
void press_help_on_f1(wxDialog& dialog);

}  // namespace qor::wx
