#include "hosts/calc/adapter/objects/command_bars/command_bar_control.hpp"

namespace qor::calc {
namespace {

class CommandBarButtonObject final : public CommandBarControl<CommandBarButtonObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBarButton";

    using CommandBarControl::CommandBarControl;

    static const MemberTable<CommandBarButtonObject>& members();

  private:
    void paste_face() {
        Control& button = own(u"PasteFace");
        if (is_empty(bars().face_on_clipboard)) {
            throw Error(ErrorNumber::host_refused, {},
                        u"CommandBarButton.PasteFace: there is no face on the clipboard.");
        }
        set(u"PasteFace", &Control::face, bars().face_on_clipboard);
        bars().face_changed(button);
    }
};

const MemberTable<CommandBarButtonObject>& CommandBarButtonObject::members() {
    using B = CommandBarButtonObject;
    static const MemberTable<B> table(rows_with({
        method<&B::paste_face>(u"PasteFace"),
    }));
    return table;
}

class CommandBarPopupObject final : public CommandBarControl<CommandBarPopupObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBarPopup";

    using CommandBarControl::CommandBarControl;

    static const MemberTable<CommandBarPopupObject>& members();

  private:
    Variant controls(const Variant& index) {
        control();
        return item_or_all(make_command_bar_controls({place().of, place().bar, pointer()}), index);
    }
};

const MemberTable<CommandBarPopupObject>& CommandBarPopupObject::members() {
    using P = CommandBarPopupObject;
    static const MemberTable<P> table(rows_with({
        property<&P::controls>(u"Controls", {u"Index"}),
    }));
    return table;
}

}  // namespace

Object make_command_bar_control(ControlPlace place, ControlPointer control) {
    switch (control->type) {
        case ControlType::popup:
            return make_object<CommandBarPopupObject>(std::move(place), std::move(control));
        case ControlType::drop_down:
            return make_command_bar_combo_box(std::move(place), std::move(control));
        case ControlType::button:
            break;
    }
    return make_object<CommandBarButtonObject>(std::move(place), std::move(control));
}

}  // namespace qor::calc
