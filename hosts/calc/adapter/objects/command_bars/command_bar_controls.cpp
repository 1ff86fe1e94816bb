#include "hosts/calc/adapter/objects/collection.hpp"
#include "hosts/calc/adapter/objects/command_bars/command_bar_objects.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

class CommandBarControlsObject final : public Collection<CommandBarControlsObject, ControlPlace> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBarControls";
    static constexpr ErrorNumber outside = ErrorNumber::invalid_call;

    using Collection::Collection;

    static const MemberTable<CommandBarControlsObject>& members();

    const Controls& all() const { return owner().controls(); }
    Object made(const ControlPointer& control) const { return make_command_bar_control(owner(), control); }
    // By its caption, access keys disregarded.
    Object named(const std::u16string& caption) const {
        return first_that([&](const ControlPointer& control) {
            return equal_ignoring_case(plain_caption(control->caption), plain_caption(caption));
        });
    }

  private:
    static ControlType type_of(std::int32_t number) {
        for (const ControlType type : {ControlType::button, ControlType::drop_down, ControlType::popup}) {
            if (number_of(type) == number) return type;
        }
        throw Error(ErrorNumber::host_refused, {},
                    u"CommandBarControls.Add: only buttons, drop-down lists and popups can be added.");
    }

    Object add(std::optional<std::int32_t> type, std::optional<std::int32_t> id,
               const std::optional<std::u16string>& parameter, std::optional<std::int32_t> before,
               std::optional<bool>) {
        Controls& among = owner().controls();
        const ControlType kind = type_of(type.value_or(number_of(ControlType::button)));
        if (id.value_or(numbers::control_id::own) != numbers::control_id::own) {
            throw Error(ErrorNumber::host_refused, {},
                        u"CommandBarControls.Add: a control of the office is not copied.");
        }
        const bool on_toolbar = owner().bar->kind == BarKind::toolbar && !owner().popup;
        if (kind == ControlType::drop_down && !on_toolbar) {
            throw Error(ErrorNumber::host_refused, {}, u"CommandBarControls.Add: menus have no drop-down lists.");
        }
        const std::size_t end = among.size();
        const std::size_t place = before ? static_cast<std::size_t>(*before) - 1 : end;
        if (place > end) throw Error(ErrorNumber::invalid_call);
        ControlPointer control = owner().of.bars->add_control(owner().bar, among, kind, place);
        if (parameter) control->parameter = *parameter;
        return make_command_bar_control(owner(), std::move(control));
    }
};

const MemberTable<CommandBarControlsObject>& CommandBarControlsObject::members() {
    using C = CommandBarControlsObject;
    static const MemberTable<C> table(rows_with({
        method<&C::add>(u"Add", {u"Type", u"Id", u"Parameter", u"Before", u"Temporary"}),
    }));
    return table;
}

bool matches(const Control& control, const ControlSearch& search) {
    return (!search.type || number_of(control.type) == *search.type) && (!search.id || control.id == *search.id) &&
           (!search.tag || control.tag == *search.tag) && (!search.visible || control.visible == *search.visible);
}

// The office's own controls have no tags: what was never read need not be read to look for one.
bool may_have_tags(const ControlPlace& place) {
    return place.popup ? !place.popup->unread_children : place.bar->read;
}

ControlPointer popup_around(const Controls& controls, const Control& control) {
    for (const ControlPointer& popup : controls) {
        if (!contains(popup->children, control)) continue;
        const auto inner = popup_around(popup->children, control);
        return inner ? inner : popup;
    }
    return nullptr;
}

}  // namespace

Controls& ControlPlace::controls() const {
    require(*bar);
    if (!popup) return of.bars->controls(*bar);
    if (popup->deleted) throw Error(ErrorNumber::host_refused, {}, u"The menu has been deleted.");
    return of.bars->controls(*popup);
}

Object application_of(const ControlPlace& place) {
    return make_application(place.of.host);
}

Object object_of(const ControlPlace& place) {
    if (!place.popup) return make_command_bar(place.of, place.bar);
    return make_command_bar_control(surroundings(place.of, place.bar, *place.popup), place.popup);
}

ControlPlace surroundings(const BarsOf& of, const BarPointer& bar, const Control& control) {
    return {of, bar, popup_around(bar->controls, control)};
}

Object find_control(const ControlPlace& place, const ControlSearch& search) {
    require(*place.bar);
    if (search.tag && !search.tag->empty() && !may_have_tags(place)) return {};
    const Controls controls = place.controls();
    for (const ControlPointer& control : controls) {
        if (matches(*control, search)) return make_command_bar_control(place, control);
        if (!search.recursive || control->type != ControlType::popup) continue;
        if (Object found = find_control({place.of, place.bar, control}, search)) return found;
    }
    return {};
}

Object make_command_bar_controls(ControlPlace place) {
    return make_object<CommandBarControlsObject>(std::move(place));
}

}  // namespace qor::calc
