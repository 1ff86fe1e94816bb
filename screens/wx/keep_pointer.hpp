#pragma once

#include <wx/window.h>

namespace qor::wx {

// The window hears of the pointer while a button is held, wherever the pointer goes, and goes on hearing of keys.
void keep_pointer(wxWindow& window);

}  // namespace qor::wx
