#include "hosts/calc/adapter/objects/command_bars/command_bar_control.hpp"

namespace qor::calc {
namespace {

class CommandBarComboBoxObject final : public CommandBarControl<CommandBarComboBoxObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBarComboBox";

    using CommandBarControl::CommandBarControl;

    static const MemberTable<CommandBarComboBoxObject>& members();

  private:
    using Items = std::vector<std::u16string>;

    static std::size_t place_of(const Items& items, std::int32_t index) {
        if (index < 1 || static_cast<std::size_t>(index) > items.size()) throw Error(ErrorNumber::invalid_call);
        return static_cast<std::size_t>(index - 1);
    }

    void add_item(const std::u16string& text, std::optional<std::int32_t> index) {
        Items& items = own(u"AddItem").items;
        const std::size_t place = index ? place_of(items, *index) : items.size();
        items.insert(items.begin() + static_cast<std::ptrdiff_t>(place), text);
        bars().list_changed(control());
    }
    void remove_item(std::int32_t index) {
        Control& list = own(u"RemoveItem");
        list.items.erase(list.items.begin() + static_cast<std::ptrdiff_t>(place_of(list.items, index)));
        if (list.chosen == index) list.chosen = 0;
        if (list.chosen > index) --list.chosen;
        bars().list_changed(list);
    }
    void clear() {
        Control& list = own(u"Clear");
        list.items.clear();
        list.chosen = 0;
        bars().list_changed(list);
    }

    std::int32_t count() { return static_cast<std::int32_t>(control().items.size()); }
    std::u16string item(std::int32_t index) { return control().items[place_of(control().items, index)]; }
    void set_item(std::int32_t index, const std::u16string& text) {
        Items& items = own(u"List").items;
        items[place_of(items, index)] = text;
        bars().list_changed(control());
    }
    std::int32_t chosen() { return control().chosen; }
    void set_chosen(std::int32_t index) {
        Control& list = own(u"ListIndex");
        if (index != 0) place_of(list.items, index);
        list.chosen = index;
        bars().list_changed(list);
    }
    std::u16string text() { return control().chosen == 0 ? std::u16string() : item(control().chosen); }

    std::int32_t drop_down_width() { return control().drop_down_width; }
    void set_drop_down_width(std::int32_t width) { own(u"DropDownWidth").drop_down_width = width; }
};

const MemberTable<CommandBarComboBoxObject>& CommandBarComboBoxObject::members() {
    using C = CommandBarComboBoxObject;
    static const MemberTable<C> table(rows_with({
        method<&C::add_item>(u"AddItem", {u"Text", u"Index"}),
        method<&C::clear>(u"Clear"),
        property<&C::drop_down_width, &C::set_drop_down_width>(u"DropDownWidth"),
        property<&C::item, &C::set_item>(u"List", {u"Index"}),
        property<&C::count>(u"ListCount"),
        property<&C::chosen, &C::set_chosen>(u"ListIndex"),
        method<&C::remove_item>(u"RemoveItem", {u"Index"}),
        property<&C::text>(u"Text"),
    }));
    return table;
}

}  // namespace

Object make_command_bar_combo_box(ControlPlace place, ControlPointer control) {
    return make_object<CommandBarComboBoxObject>(std::move(place), std::move(control));
}

}  // namespace qor::calc
