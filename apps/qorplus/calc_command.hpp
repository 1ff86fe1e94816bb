#pragma once

#include <string>
#include <vector>

namespace qor::cli {

// Becomes a LibreOffice Calc with the add-in, showing the files. It runs with a profile of its own: the user's stays
// as it is, and another LibreOffice may be open at the same time. Raises UsageError and OfficeError.
[[noreturn]] void become_calc(const std::vector<std::string>& files);

}  // namespace qor::cli
