#pragma once

#include <wx/bmpbndl.h>

#include <string_view>

namespace qor::wx {

// A tool's face at all its sizes; not ok for a name that there is not.
wxBitmapBundle face(std::u16string_view name);

}  // namespace qor::wx
