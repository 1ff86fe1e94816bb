#pragma once

#include <wx/dialog.h>

#include "screens/wx/native_window.hpp"

namespace qor::wx {

// Has a dialog without a parent stand over the host's window, in its middle; where there is none, in the middle of the
// display.
void stand_over_host(wxDialog& dialog, const NativeWindow& host);

// Has a dialog that is not shown yet stand in the middle of its parent.
void stand_over_parent(wxDialog& dialog);

}  // namespace qor::wx
