#pragma once

#include "hosts/calc/adapter/objects/command_bars/command_bar_objects.hpp"
#include "hosts/calc/adapter/objects/owned_object.hpp"

namespace qor::calc {

// What buttons, lists and popups have in common.
template <class Self>
class CommandBarControl : public OwnedObject<Self, ControlPlace> {
    using Base = OwnedObject<Self, ControlPlace>;

  public:
    CommandBarControl(ControlPlace place, ControlPointer control)
        : Base(std::move(place)), control_(std::move(control)) {}

    const Control* identity() const { return control_.get(); }

    // The rows that all have, and those of one kind.
    static std::vector<Member<Self>> rows_with(std::vector<Member<Self>> rows) {
        using C = CommandBarControl;
        const auto add = [&](Member<C> row) { rows.push_back(inherited<Self>(std::move(row))); };
        add(property<&C::begin_group, &C::set_begin_group>(u"BeginGroup"));
        add(property<&C::built_in>(u"BuiltIn"));
        add(property<&C::caption, &C::set_caption>(u"Caption"));
        add(method<&C::remove>(u"Delete", {u"Temporary"}));
        add(property<&C::enabled, &C::set_enabled>(u"Enabled"));
        add(property<&C::id>(u"Id"));
        add(property<&C::index>(u"Index"));
        add(property<&C::on_action, &C::set_on_action>(u"OnAction"));
        add(property<&C::parameter, &C::set_parameter>(u"Parameter"));
        add(property<&C::tag, &C::set_tag>(u"Tag"));
        add(property<&C::tool_tip, &C::set_tool_tip>(u"TooltipText"));
        add(property<&C::type>(u"Type"));
        add(property<&C::visible, &C::set_visible>(u"Visible"));
        add(property<&C::width, &C::set_width>(u"Width"));
        return Base::rows_with(std::move(rows));
    }

    Object parent() const {
        control();
        return object_of(place());
    }

  protected:
    Control& control() const {
        require(*place().bar);
        if (control_->deleted) throw Error(ErrorNumber::host_refused, {}, u"The control has been deleted.");
        return *control_;
    }
    // For a change; the office's own controls are left as they are.
    Control& own(std::u16string_view member) const {
        if (control().built_in) {
            throw Error(ErrorNumber::host_refused, {},
                        u"CommandBarControl." + std::u16string(member) + u": " + plain_caption(control_->caption) +
                            u" is the office's own.");
        }
        return *control_;
    }
    template <class Value>
    void set(std::u16string_view member, Value Control::*field, Value value) const {
        Control& target = own(member);
        if (target.*field == value) return;
        target.*field = std::move(value);
        place().of.bars->changed(place().bar);
    }
    Bars& bars() const { return *place().of.bars; }
    const ControlPlace& place() const { return this->owner(); }
    const ControlPointer& pointer() const { return control_; }

  private:
    bool begin_group() { return control().begin_group; }
    void set_begin_group(bool begins) { set(u"BeginGroup", &Control::begin_group, begins); }
    bool built_in() { return control().built_in; }
    std::u16string caption() { return control().caption; }
    void set_caption(const std::u16string& caption) { set(u"Caption", &Control::caption, caption); }
    bool enabled() { return control().enabled; }
    void set_enabled(bool enabled) {
        set(u"Enabled", &Control::enabled, enabled);
        bars().list_changed(control());
    }
    std::int32_t id() { return control().id; }
    std::int32_t index() {
        control();
        return index_of(place().controls(), control_);
    }
    std::u16string on_action() { return control().action; }
    void set_on_action(const std::u16string& macro) { own(u"OnAction").action = macro; }
    std::u16string parameter() { return control().parameter; }
    void set_parameter(const std::u16string& parameter) { own(u"Parameter").parameter = parameter; }
    std::u16string tag() { return control().tag; }
    void set_tag(const std::u16string& tag) { own(u"Tag").tag = tag; }
    std::u16string tool_tip() {
        return control().tool_tip.empty() ? plain_caption(control().caption) : control().tool_tip;
    }
    void set_tool_tip(const std::u16string& text) { set(u"TooltipText", &Control::tool_tip, text); }
    std::int32_t type() { return number_of(control().type); }
    bool visible() { return control().visible; }
    void set_visible(bool visible) { set(u"Visible", &Control::visible, visible); }
    std::int32_t width() { return control().width; }
    void set_width(std::int32_t width) {
        own(u"Width").width = width;
        bars().list_changed(control());
    }

    void remove(std::optional<bool>) {
        own(u"Delete");
        bars().remove_control(place().bar, place().controls(), control_);
    }

    ControlPointer control_;
};

Object make_command_bar_combo_box(ControlPlace place, ControlPointer control);

}  // namespace qor::calc
