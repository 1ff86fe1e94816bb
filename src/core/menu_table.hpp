#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// What stands on the add-in's menu and toolbars. A name of a macro stays as it is written here: hosts do not mind case.
namespace qor {

struct MenuTool {
    std::u16string_view caption;
    std::u16string_view macro;
    std::u16string_view face;
    bool begins_group = false;
    std::u16string_view toolbar_caption = {};  // where it is another
    std::u16string_view toolbar_macro = {};    // where it is another
};

struct MenuToolbar {
    std::u16string_view section;  // of the settings, where its place is kept
    std::u16string_view suffix;   // of its name, behind the title
    std::int32_t top;             // pixels, where no place is kept
    std::int32_t width;
};

struct MenuGroup {
    std::u16string_view caption;
    bool begins_group;
    MenuToolbar toolbar;
    std::span<const MenuTool> tools;
};

// In the order of the popups.
std::span<const MenuGroup> menu_groups();

// An entry at the end of the popup, without a button and a tip. One without a macro is a popup of its own, and holds
// the entries that follow with `in_popup`.
struct ClosingEntry {
    std::u16string_view caption;
    std::u16string_view macro;
    std::u16string_view face;  // empty: none
    bool begins_group = false;
    bool in_popup = false;
};

std::span<const ClosingEntry> closing_entries();

}  // namespace qor
