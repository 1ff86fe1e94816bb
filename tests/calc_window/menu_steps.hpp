#pragma once

#include <string>
#include <vector>

#include "automation/member_names.hpp"
#include "automation/variant.hpp"
#include "platform/face_clipboard.hpp"

namespace qor::calc::tests {

inline constexpr std::u16string_view menu_title = u"QOR Plus";

struct ToolRow {
    std::u16string caption;
    std::u16string macro;
    std::u16string face;
    bool begins_group = false;
};

struct ToolGroup {
    std::u16string caption;  // of the popup
    std::u16string bar;      // its name begins with the title
    std::int32_t top;
    std::int32_t width;
    std::vector<ToolRow> tools;
};

// Three groups of a few tools each.
const std::vector<ToolGroup>& tool_groups();

// Builds a menu before Help and a floating toolbar for each group, with the same steps for each tool on both, and a
// list of bookmarks at the end of the last bar.
void create_menu(const Object& application, FaceClipboard& faces);
// Deletes the bars, and on all other bars what carries the title as its tag.
void delete_menu(const Object& application);

std::u16string name_of_bar(const ToolGroup& group);

}  // namespace qor::calc::tests
