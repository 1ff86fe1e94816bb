#pragma once

#include <string>
#include <string_view>

#include "core/tool_table.hpp"

namespace qor {

// Whether there is an active workbook; where not, says that one is needed.
bool require_active_workbook();

// Shows the form until it ends, under the product's title and its own, and with its place in the help.
void show_form(ToolForm& form, std::u16string_view title, std::int32_t help_id, const std::u16string& help_file);

// What every tool does when it starts: asks for an active workbook and shows the tool's form. gExcel is set by the
// caller.
void launch(const Tool& tool, const std::u16string& help_file);

}  // namespace qor
