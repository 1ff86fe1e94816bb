#pragma once

#include <string>
#include <vector>

#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// The files in the office's menu of those used last, the newest first. They are of all its programs, as the menu has
// them.
std::vector<std::u16string> recent_files(const Host& host);  // their addresses
// Raises 1004 when it is not in the list.
void forget_recent_file(const Host& host, std::u16string_view address);

// How many the menu shows at most; with 0 there is no such menu. Raises 1004 above 50 and below 0.
std::int32_t recent_file_limit(const Host& host);
void set_recent_file_limit(const Host& host, std::int32_t limit);

}  // namespace qor::calc
