#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/command_bars/command_bar_objects.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

class CommandBarObject final : public CalcObject<CommandBarObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBar";

    CommandBarObject(BarsOf of, BarPointer bar) : of_(std::move(of)), bar_(std::move(bar)) {}

    static const MemberTable<CommandBarObject>& members();

    const Bar* identity() const { return bar_.get(); }

  private:
    Bar& bar() const {
        require(*bar_);
        return *bar_;
    }
    ControlPlace place() const { return {of_, bar_, nullptr}; }
    bool is_menu_bar() const { return bar().kind == BarKind::menu_bar; }

    // The menu bar has its place above all toolbars, and keeps it.
    template <auto reader>
    std::int32_t read_place(std::int32_t of_menu_bar) const {
        return is_menu_bar() ? of_menu_bar : static_cast<std::int32_t>((of_.bars->place_of(bar()).*reader)());
    }
    template <auto writer, class Value>
    void write_place(std::u16string_view member, Value value) const {
        if (is_menu_bar()) {
            throw Error(ErrorNumber::host_refused, {},
                        u"CommandBar." + std::u16string(member) + u": the menu bar cannot be moved or hidden.");
        }
        BarPlace to = of_.bars->place_of(bar());
        (to.*writer)(value);
    }

    std::u16string name() { return bar().name; }
    std::int32_t type() { return number_of(is_menu_bar() ? BarType::menu_bar : BarType::toolbar); }
    bool built_in() { return bar().built_in; }
    std::int32_t index() {
        require(*bar_);
        return index_of(of_.bars->all(), bar_);
    }

    std::int32_t position() { return read_place<&BarPlace::position>(number_of(BarPosition::top)); }
    void set_position(std::int32_t position) {
        if (position < 0 || position > number_of(BarPosition::floating)) {
            throw Error(ErrorNumber::host_refused, {}, u"CommandBar.Position: toolbars are docked or float.");
        }
        write_place<&BarPlace::set_position>(u"Position", static_cast<BarPosition>(position));
    }
    std::int32_t row_index() { return read_place<&BarPlace::row>(0); }
    void set_row_index(std::int32_t row) { write_place<&BarPlace::set_row>(u"RowIndex", row); }
    std::int32_t left() { return read_place<&BarPlace::left>(0); }
    void set_left(std::int32_t left) { write_place<&BarPlace::set_left>(u"Left", left); }
    std::int32_t top() { return read_place<&BarPlace::top>(0); }
    void set_top(std::int32_t top) { write_place<&BarPlace::set_top>(u"Top", top); }
    std::int32_t width() { return read_place<&BarPlace::width>(0); }
    void set_width(std::int32_t width) { write_place<&BarPlace::set_width>(u"Width", width); }
    std::int32_t height() { return read_place<&BarPlace::height>(0); }
    void set_height(std::int32_t height) { write_place<&BarPlace::set_height>(u"Height", height); }
    bool visible() { return is_menu_bar() || of_.bars->place_of(bar()).visible(); }
    void set_visible(bool visible) { write_place<&BarPlace::set_visible>(u"Visible", visible); }

    Variant controls(const Variant& index) { return item_or_all(make_command_bar_controls(place()), index); }
    Object find(std::optional<std::int32_t> type, std::optional<std::int32_t> id,
                const std::optional<std::u16string>& tag, std::optional<bool> visible, std::optional<bool> recursive) {
        return find_control(place(), {type, id, tag, visible, recursive.value_or(false)});
    }
    void remove() {
        if (bar().built_in) {
            throw Error(ErrorNumber::host_refused, {}, u"CommandBar.Delete: " + bar().name + u" is the office's own.");
        }
        of_.bars->remove(bar_);
    }

    Object parent() { return make_command_bars(of_.host); }
    Object application() { return make_application(of_.host); }

    BarsOf of_;
    BarPointer bar_;
};

const MemberTable<CommandBarObject>& CommandBarObject::members() {
    using B = CommandBarObject;
    static const MemberTable<B> table({
        property<&B::application>(u"Application"),
        property<&B::built_in>(u"BuiltIn"),
        property<&B::controls>(u"Controls", {u"Index"}),
        method<&B::remove>(u"Delete"),
        method<&B::find>(u"FindControl", {u"Type", u"Id", u"Tag", u"Visible", u"Recursive"}),
        property<&B::height, &B::set_height>(u"Height"),
        property<&B::index>(u"Index"),
        property<&B::left, &B::set_left>(u"Left"),
        property<&B::name>(u"Name"),
        property<&B::parent>(u"Parent"),
        property<&B::position, &B::set_position>(u"Position"),
        property<&B::row_index, &B::set_row_index>(u"RowIndex"),
        property<&B::top, &B::set_top>(u"Top"),
        property<&B::type>(u"Type"),
        property<&B::visible, &B::set_visible>(u"Visible"),
        property<&B::width, &B::set_width>(u"Width"),
    });
    return table;
}

}  // namespace

void require(const Bar& bar) {
    if (bar.deleted) throw Error(ErrorNumber::host_refused, {}, u"The toolbar " + bar.name + u" has been deleted.");
}

Object make_command_bar(BarsOf of, BarPointer bar) {
    return make_object<CommandBarObject>(std::move(of), std::move(bar));
}

}  // namespace qor::calc
