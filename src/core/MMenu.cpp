#include "core/MMenu.hpp"

#include <algorithm>
#include <vector>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "core/bookmark_list.hpp"
#include "core/menu_table.hpp"
#include "core/toolbar_places.hpp"
#include "ground/MMain.hpp"
#include "ground/product.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

using MacroExists = std::function<bool(std::u16string_view)>;

std::u16string bar_name(const MenuToolbar& toolbar) {
    return std::u16string(product::title).append(toolbar.suffix);
}

std::u16string without_access_key(std::u16string_view caption) {
    std::u16string text(caption);
    std::erase(text, u'&');
    return text;
}

Object command_bar(std::u16string_view name) {
    Object bar;
    attempt([&] { bar = gExcel.get(names::CommandBars, name); });
    return bar;
}

std::vector<Variant> command_bars() {
    std::vector<Variant> bars;
    attempt([&] { bars = gExcel.get(names::CommandBars).object().items(); });
    return bars;
}

Object add_control(const Object& owner, ControlType type) {
    Object control;
    attempt([&] {
        control = owner.get(names::Controls)
                      .call(names::Add, named(names::Type, number_of(type)), named(names::Temporary, false));
    });
    return control;
}

// Every statement stands for itself, so a control that could not be added costs nothing but itself.
template <class Value>
void put(const Object& control, const MemberName& property, const Value& value) {
    attempt([&] { control.put(property, value); });
}

void put_tag(const Object& control) {
    put(control, names::Tag, product::title);
}

Object add_popup(const Object& owner, std::u16string_view caption, bool begins_group) {
    Object control = add_control(owner, ControlType::popup);
    if (begins_group) put(control, names::BeginGroup, true);
    put(control, names::Caption, caption);
    put_tag(control);
    return control;
}

struct ButtonLook {
    std::u16string_view caption;
    std::u16string_view macro;
    std::u16string_view tip;
    bool begins_group;
    bool has_face;
};

// The face is the one that was put on the clipboard last.
void add_button(const Object& owner, const ButtonLook& look, std::u16string_view face_to_load = {}) {
    const Object control = add_control(owner, ControlType::button);
    if (look.begins_group) put(control, names::BeginGroup, true);
    put(control, names::Caption, look.caption);
    if (!face_to_load.empty()) attempt([&] { environment().faces.put(face_to_load); });
    put(control, names::OnAction, look.macro);
    if (look.has_face) attempt([&] { control.call(names::PasteFace); });
    put_tag(control);
    if (!look.tip.empty()) put(control, names::ToolTipText, look.tip);
}

void add_tool(const Object& entries, const Object& bar, const MenuTool& tool) {
    const std::u16string tip = without_access_key(tool.caption);
    ButtonLook look{tool.caption, tool.macro, tip, tool.begins_group, true};
    add_button(entries, look, tool.face);
    if (!tool.toolbar_caption.empty()) look.caption = tool.toolbar_caption;
    if (!tool.toolbar_macro.empty()) look.macro = tool.toolbar_macro;
    add_button(bar, look);
}

Object add_toolbar(const MenuToolbar& toolbar) {
    Object bar;
    attempt([&] {
        bar = gExcel.get(names::CommandBars)
                  .call(names::Add, named(names::Name, bar_name(toolbar)), named(names::Temporary, true));
    });
    return bar;
}

void add_bookmarks(const Object& bar, const MacroExists& exists) {
    if (exists(u"UTBoo")) {
        const Object list = add_control(bar, ControlType::drop_down);
        put(list, names::BeginGroup, true);
        put(list, names::DropDownWidth, 150);
        put(list, names::OnAction, std::u16string_view(u"UTBoo"));
        attempt([&] { list.put(names::Width, list.get(names::DropDownWidth)); });
        put_tag(list);
    }
    if (exists(u"UTBooAED")) {
        constexpr std::u16string_view caption = u"Add, Edit, and Delete Bookmarks";
        add_button(bar, {caption, u"UTBooAED", caption, false, true}, u"BOOAED");
    }
}

void add_groups(const Object& top, const MacroExists& exists) {
    for (const MenuGroup& group : menu_groups()) {
        const Object entries = add_popup(top, group.caption, group.begins_group);
        const Object bar = add_toolbar(group.toolbar);
        for (const MenuTool& tool : group.tools) {
            if (exists(tool.toolbar_macro.empty() ? tool.macro : tool.toolbar_macro)) add_tool(entries, bar, tool);
        }
        if (&group == &menu_groups().back()) add_bookmarks(bar, exists);
    }
}

void add_closing_entries(const Object& top) {
    Object inner;
    for (const ClosingEntry& entry : closing_entries()) {
        const Object& owner = entry.in_popup ? inner : top;
        if (entry.macro.empty()) {
            inner = add_popup(owner, entry.caption, entry.begins_group);
        } else {
            add_button(owner, {entry.caption, entry.macro, {}, entry.begins_group, !entry.face.empty()}, entry.face);
        }
    }
}

// Before the host's Help menu, or at the end where there is none.
Object add_top_popup() {
    constexpr std::int32_t popup = number_of(ControlType::popup);
    Object top;
    attempt([&] {
        const Object bar = gExcel.get(names::CommandBars, 1);
        const Object controls = bar.get(names::Controls);
        Object help;
        attempt([&] {
            help = bar.call(names::FindControl, named(names::Type, popup),
                            named(names::Id, numbers::control_id::help_menu));
        });
        top = help ? controls.call(names::Add, named(names::Type, popup), named(names::Before, help.get(names::Index)),
                                   named(names::Temporary, false))
                   : controls.call(names::Add, named(names::Type, popup), named(names::Temporary, false));
    });
    put(top, names::Caption, u'&' + std::u16string(product::title));
    put_tag(top);
    return top;
}

std::u16string own_folder() {
    std::u16string folder;
    attempt([&] { folder = to_text(gExcel.get(names::ThisWorkbook).get(names::Path)); });
    return folder;
}

// A control that the host does not let go ends the search on its bar.
void delete_tagged_controls(const Object& bar) {
    attempt([&] {
        while (const Object control = bar.call(names::FindControl, named(names::Tag, product::title)).object())
            control.call(names::Delete);
    });
}

}  // namespace

void create_menu(const MacroExists& exists) {
    delete_menu(false);
    attempt([&] { gExcel.put(names::ScreenUpdating, false); });
    const Object top = add_top_popup();
    add_groups(top, exists);
    add_closing_entries(top);
    for (const MenuGroup& group : menu_groups()) restore_place(group.toolbar, command_bar(bar_name(group.toolbar)));
    fill_bookmark_list(own_folder().append(bookmark_file));
    attempt([&] { gExcel.put(names::ScreenUpdating, true); });
}

void delete_menu(bool only_save) {
    for (const MenuGroup& group : menu_groups()) {
        const Object bar = command_bar(bar_name(group.toolbar));
        if (!bar) continue;
        save_place(group.toolbar, bar);
        if (!only_save) attempt([&] { bar.call(names::Delete); });
    }
    if (only_save) return;
    for (const Variant& bar : command_bars()) delete_tagged_controls(bar);
}

}  // namespace qor
