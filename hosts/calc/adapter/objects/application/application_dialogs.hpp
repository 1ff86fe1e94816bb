#pragma once

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// Lets the user name a file to save to; answers the path, False when the user cancels. `filter` holds pairs of a label
// and its patterns, such as "Workbooks (*.xls),*.xls;*.xlt"; the extension of the chosen pair's first pattern is added
// to a name that has none. Raises 1004 for a filter that is no list of pairs.
Variant get_save_as_filename(Host& host, std::u16string_view initial, std::u16string_view filter,
                             std::int32_t filter_index, const std::u16string& title);

// Lets the user mark a range and answers it, False when the user cancels. Raises 1004 for a kind of answer other than
// 8, a range.
Variant input_box(const HostPointer& host, const std::u16string& prompt, const std::u16string& title,
                  const Variant& proposed, std::int32_t type);

// Shows a help page: a file or an address of the web, at the place that is marked with the number if it is not 0.
// Raises 1004 when it cannot be shown.
void show_help(Host& host, const std::u16string& page, std::int32_t place);

}  // namespace qor::calc
