#include "screens/wx/keep_pointer.hpp"

namespace qor::wx {

// The display does so by itself for the window in which a button goes down; the toolkit's capture would keep the keys
// away.
void keep_pointer(wxWindow&) {}

}  // namespace qor::wx
