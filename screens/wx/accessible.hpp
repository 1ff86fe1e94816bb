#pragma once

#include <wx/window.h>

namespace qor::wx {

// What a screen reader calls the window, and what it says of the window's present state.
void name_for_reader(wxWindow& window, const wxString& name);
void describe_to_reader(wxWindow& window, const wxString& description);
// Empty for a window that nobody has named.
wxString reader_name(const wxWindow& window);

}  // namespace qor::wx
