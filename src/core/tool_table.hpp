#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "automation/member_name.hpp"
#include "ground/tool_form.hpp"

namespace qor {

// A tool as the user knows it: a member of CCom that shows a form.
struct Tool {
    std::u16string_view member;
    std::u16string_view title;  // stands behind the product's title in the caption, and names the undo step
    std::int32_t help_id;
    bool needs_active_workbook;
    std::unique_ptr<ToolForm> (*make_form)();
};

std::span<const Tool> tools();

// Null for a member that is no tool.
const Tool* find_tool(const MemberName& member);

}  // namespace qor
