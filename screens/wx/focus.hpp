#pragma once

#include <wx/dialog.h>

#include <functional>

namespace qor::wx {

// Calls `moved` whenever another part of the dialog becomes the one that takes the keyboard, which it stays while
// another window is in front.
void watch_focus(wxDialog& dialog, std::function<void()> moved);

// Whether that part lies in the window.
bool holds_focus(const wxDialog& dialog, const wxWindow& window);

}  // namespace qor::wx
