#include "hosts/calc/bars/bar_content.hpp"

#include <algorithm>
#include <com/sun/star/lang/XSingleComponentFactory.hpp>
#include <com/sun/star/ui/ItemStyle.hpp>
#include <com/sun/star/ui/ItemType.hpp>
#include <map>

#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using css::container::XIndexAccess;
using css::container::XIndexContainer;
using rtl::OUString;
namespace style = css::ui::ItemStyle;

// The numbers that macro authors know the menus by. The office's other controls have none, which is 0.
const std::map<std::u16string_view, std::int32_t> menu_ids{
    {u".uno:PickList", numbers::control_id::file_menu},     {u".uno:EditMenu", numbers::control_id::edit_menu},
    {u".uno:ViewMenu", numbers::control_id::view_menu},     {u".uno:InsertMenu", numbers::control_id::insert_menu},
    {u".uno:FormatMenu", numbers::control_id::format_menu}, {u".uno:ToolsMenu", numbers::control_id::tools_menu},
    {u".uno:WindowList", numbers::control_id::window_menu}, {u".uno:HelpMenu", numbers::control_id::help_menu},
    {u".uno:DataMenu", numbers::control_id::data_menu},
};

struct Item {
    std::u16string command;
    std::u16string label;
    sal_Int16 type = css::ui::ItemType::DEFAULT;
    bool visible = true;
    Ref<XIndexAccess> children;

    bool is_separator() const { return type != css::ui::ItemType::DEFAULT; }
    bool is_own() const { return command.starts_with(own_command_prefix); }
};

Item item_at(const Ref<XIndexAccess>& content, sal_Int32 place) {
    Item item;
    for (const auto& property : value_of<PropertyValues>(content->getByIndex(place))) {
        OUString text;
        if (property.Name == "CommandURL" && (property.Value >>= text)) item.command = from_uno(text);
        if (property.Name == "Label" && (property.Value >>= text)) item.label = from_uno(text);
        if (property.Name == "Type") property.Value >>= item.type;
        if (property.Name == "IsVisible") property.Value >>= item.visible;
        if (property.Name == "ItemDescriptorContainer") item.children = Ref<XIndexAccess>(property.Value);
    }
    return item;
}

PropertyValues separator() {
    return sequence_of({named_value("CommandURL", to_uno(own_command_prefix)),
                        named_value("Type", sal_Int16(css::ui::ItemType::SEPARATOR_LINE))});
}

sal_Int16 style_of(const Control& control) {
    if (control.type == ControlType::popup) return style::TEXT | style::DROPDOWN_ONLY;
    if (control.type == ControlType::drop_down) return 0;
    return is_empty(control.face) ? style::TEXT : style::ICON;
}

PropertyValues described(BarKind kind, const Control& control, const Ref<XIndexAccess>& children) {
    const bool on_menu = kind == BarKind::menu_bar;
    const std::u16string label = on_menu ? office_label(control.caption) : plain_caption(control.caption);
    std::vector<css::beans::PropertyValue> properties{named_value("CommandURL", to_uno(control.command)),
                                                      named_value("Label", to_uno(label)),
                                                      named_value("Type", sal_Int16(css::ui::ItemType::DEFAULT)),
                                                      named_value("Style", on_menu ? sal_Int16(0) : style_of(control))};
    if (!control.tool_tip.empty()) properties.push_back(named_value("Tooltip", to_uno(control.tool_tip)));
    if (children) properties.push_back(named_value("ItemDescriptorContainer", children.reference()));
    return {properties.data(), static_cast<sal_Int32>(properties.size())};
}

// Where the first of the office's controls from here on stands; at the end when none follows.
sal_Int32 place_before(const Ref<XIndexAccess>& content, Controls::const_iterator from, Controls::const_iterator end) {
    const auto next = std::find_if(from, end, [](const ControlPointer& control) { return control->built_in; });
    const sal_Int32 count = content->getCount();
    if (next == end) return count;
    for (sal_Int32 place = 0; place < count; ++place) {
        if (item_at(content, place).command != (*next)->command) continue;
        // The line before the office's control begins its group, not ours.
        const bool line_before = place > 0 && item_at(content, place - 1).is_separator();
        return line_before ? place - 1 : place;
    }
    return count;
}

// Only the outermost content makes containers for the entries of popups.
struct Insertion {
    const ModuleUi& ui;
    Ref<css::lang::XSingleComponentFactory> factory;

    void insert(BarKind kind, const Ref<XIndexContainer>& items, const Controls& controls) const {
        const Ref<XIndexAccess> present(items);
        for (auto one = controls.begin(); one != controls.end(); ++one) {
            const Control& control = **one;
            if (control.built_in) {
                insert_into(kind, present, control);
                continue;
            }
            if (!control.visible) continue;
            const Ref<XIndexAccess> children =
                control.type == ControlType::popup ? entries_of(control) : Ref<XIndexAccess>();
            sal_Int32 place = place_before(present, one, controls.end());
            if (control.begin_group && place > 0) items->insertByIndex(place++, css::uno::Any(separator()));
            items->insertByIndex(place, css::uno::Any(described(kind, control, children)));
        }
    }

  private:
    void insert_into(BarKind kind, const Ref<XIndexAccess>& present, const Control& popup) const {
        if (!contains_own(popup.children)) return;
        for (sal_Int32 place = 0; place < present->getCount(); ++place) {
            const Item item = item_at(present, place);
            const Ref<XIndexContainer> children(item.children);
            if (item.command == popup.command && children) insert(kind, children, popup.children);
        }
    }

    Ref<XIndexAccess> entries_of(const Control& popup) const {
        const Ref<XIndexContainer> entries(Ref{factory->createInstanceWithContext(ui.context().reference())});
        insert(BarKind::menu_bar, entries, popup.children);
        return Ref<XIndexAccess>(entries);
    }
};

}  // namespace

Controls built_in_controls(const ModuleUi& ui, const Ref<XIndexAccess>& items) {
    Controls result;
    bool begins_group = false;
    for (sal_Int32 place = 0; place < items->getCount(); ++place) {
        const Item item = item_at(items, place);
        if (item.is_own()) continue;
        if (item.is_separator()) {
            begins_group = !result.empty();
            continue;
        }
        auto control = std::make_shared<Control>();
        control->built_in = true;
        control->command = item.command;
        const auto menu = menu_ids.find(control->command);
        control->id = menu == menu_ids.end() ? 0 : menu->second;
        control->type = item.children ? ControlType::popup : ControlType::button;
        control->caption = caption_of_label(item.label.empty() ? ui.label_of(item.command) : item.label);
        control->visible = item.visible;
        control->begin_group = std::exchange(begins_group, false);
        control->unread_children = item.children;
        result.push_back(std::move(control));
    }
    return result;
}

void remove_own(const Ref<XIndexContainer>& items) {
    for (sal_Int32 place = items->getCount(); place-- > 0;) {
        const Item item = item_at(Ref<XIndexAccess>(items), place);
        if (item.is_own()) {
            items->removeByIndex(place);
        } else if (const Ref<XIndexContainer> children{item.children}) {
            remove_own(children);
        }
    }
}

void insert_own(const ModuleUi& ui, BarKind kind, const Ref<XIndexContainer>& content, const Controls& controls) {
    Insertion{ui, Ref<css::lang::XSingleComponentFactory>(content)}.insert(kind, content, controls);
}

}  // namespace qor::calc
