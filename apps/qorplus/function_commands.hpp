#pragma once

#include <string>
#include <vector>

namespace qor::cli {

// Computes a worksheet function. The arguments are in the notation of parse_value, the result in that of show_value.
// Raises UsageError for a function that there is not, and for arguments that do not fit it.
std::string call_function(const std::string& name, const std::vector<std::string>& arguments);

// The table of worksheet functions, a line each.
std::string list_functions();
std::string list_functions_as_json();

}  // namespace qor::cli
