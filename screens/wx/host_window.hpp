#pragma once

#include <wx/dialog.h>

#include <functional>
#include <memory>

#include "screens/wx/native_window.hpp"

namespace qor::wx {

// Has a dialog without a parent stand over the host's window, in its middle; where there is none, in the middle of the
// display.
void stand_over_host(wxDialog& dialog, const NativeWindow& host);

// Has a dialog that is not shown yet stand in the middle of its parent.
void stand_over_parent(wxDialog& dialog);

// A host's window that the user asks to close while a dialog is open: `asked` is called, and the window closes when
// what is returned here is destroyed. The toolkit itself would not hear of it.
std::shared_ptr<void> watch_host_closing(std::function<void()> asked);

}  // namespace qor::wx
