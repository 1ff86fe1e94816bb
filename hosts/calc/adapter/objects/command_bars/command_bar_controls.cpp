#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/command_bars/command_bar_objects.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

class CommandBarControlsObject final : public CalcObject<CommandBarControlsObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBarControls";

    explicit CommandBarControlsObject(ControlPlace place) : place_(std::move(place)) {}

    static const MemberTable<CommandBarControlsObject>& members();

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const ControlPointer& control : place_.controls()) {
            result.emplace_back(make_command_bar_control(place_, control));
        }
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(place_.controls().size()); }

    // By its place or its caption, access keys disregarded.
    Object item(const Variant& index) {
        const Controls& controls = place_.controls();
        const auto* caption = index.get_if<std::u16string>();
        if (!caption) {
            const std::int32_t place = to_long(index);
            if (place < 1 || static_cast<std::size_t>(place) > controls.size()) throw Error(ErrorNumber::invalid_call);
            return make_command_bar_control(place_, element_at(controls, place));
        }
        const auto same = [&](const ControlPointer& control) {
            return equal_ignoring_case(plain_caption(control->caption), plain_caption(*caption));
        };
        const auto found = std::ranges::find_if(controls, same);
        if (found == controls.end()) throw Error(ErrorNumber::invalid_call);
        return make_command_bar_control(place_, *found);
    }

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
        Controls& among = place_.controls();
        const ControlType kind = type_of(type.value_or(number_of(ControlType::button)));
        if (id.value_or(numbers::control_id::own) != numbers::control_id::own) {
            throw Error(ErrorNumber::host_refused, {},
                        u"CommandBarControls.Add: a control of the office is not copied.");
        }
        const bool on_toolbar = place_.bar->kind == BarKind::toolbar && !place_.popup;
        if (kind == ControlType::drop_down && !on_toolbar) {
            throw Error(ErrorNumber::host_refused, {}, u"CommandBarControls.Add: menus have no drop-down lists.");
        }
        const std::size_t end = among.size();
        const std::size_t place = before ? static_cast<std::size_t>(*before) - 1 : end;
        if (place > end) throw Error(ErrorNumber::invalid_call);
        ControlPointer control = place_.of.bars->add_control(place_.bar, among, kind, place);
        if (parameter) control->parameter = *parameter;
        return make_command_bar_control(place_, std::move(control));
    }

    Object parent() {
        if (!place_.popup) return make_command_bar(place_.of, place_.bar);
        return make_command_bar_control(surroundings(place_.of, place_.bar, *place_.popup), place_.popup);
    }
    Object application() { return make_application(place_.of.host); }

    ControlPlace place_;
};

const MemberTable<CommandBarControlsObject>& CommandBarControlsObject::members() {
    using C = CommandBarControlsObject;
    static const MemberTable<C> table({
        method<&C::add>(u"Add", {u"Type", u"Id", u"Parameter", u"Before", u"Temporary"}),
        property<&C::application>(u"Application"),
        property<&C::count>(u"Count"),
        property<&C::item>(u"Item", {u"Index"}),
        property<&C::parent>(u"Parent"),
    });
    return table;
}

bool matches(const Control& control, const ControlSearch& search) {
    return (!search.type || number_of(control.type) == *search.type) && (!search.id || control.id == *search.id) &&
           (!search.tag || control.tag == *search.tag) && (!search.visible || control.visible == *search.visible);
}

// The office's own controls have no tags: what was never read need not be read to look for one.
bool may_have_tags(const ControlPlace& place) {
    return place.popup ? !place.popup->unread_children.is() : place.bar->read;
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
