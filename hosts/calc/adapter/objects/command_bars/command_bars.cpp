#include "hosts/calc/adapter/objects/collection.hpp"
#include "hosts/calc/adapter/objects/command_bars/command_bar_objects.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

class CommandBarsObject final : public Collection<CommandBarsObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"CommandBars";

    explicit CommandBarsObject(BarsOf of) : Collection(of.host), of_(std::move(of)) {}

    static const MemberTable<CommandBarsObject>& members();

    const Bars* identity() const { return of_.bars.get(); }

    const std::vector<BarPointer>& all() const { return of_.bars->all(); }
    Object made(const BarPointer& bar) const { return make_command_bar(of_, bar); }
    Object named(const std::u16string& name) const {
        const BarPointer bar = bar_named(name);
        if (!bar) throw Error(ErrorNumber::invalid_call);
        return made(bar);
    }

  private:
    BarPointer bar_named(std::u16string_view name) const {
        const auto found =
            std::ranges::find_if(all(), [&](const BarPointer& bar) { return equal_ignoring_case(bar->name, name); });
        return found == all().end() ? nullptr : *found;
    }

    std::u16string unused_name() const {
        for (std::int32_t number = 1;; ++number) {
            std::u16string name = u"Custom " + from_utf8(std::to_string(number));
            if (!bar_named(name)) return name;
        }
    }

    Object add(const std::optional<std::u16string>& name, std::optional<std::int32_t> position,
               std::optional<bool> menu_bar, std::optional<bool>) {
        constexpr std::int32_t last_position = number_of(BarPosition::floating);
        const auto asked = position.value_or(last_position);
        if (name && (name->empty() || bar_named(*name))) throw Error(ErrorNumber::invalid_call);
        if (menu_bar.value_or(false) || asked < 0 || asked > last_position) {
            throw Error(ErrorNumber::host_refused, {},
                        u"CommandBars.Add: only toolbars that are docked or float can be added.");
        }
        BarPointer bar = of_.bars->add(name ? *name : unused_name());
        of_.bars->place_of(*bar).set_position(static_cast<BarPosition>(asked));
        return make_command_bar(of_, std::move(bar));
    }

    Object find(std::optional<std::int32_t> type, std::optional<std::int32_t> id,
                const std::optional<std::u16string>& tag, std::optional<bool> visible) {
        const std::vector<BarPointer> bars = all();
        for (const BarPointer& bar : bars) {
            if (Object found = find_control({of_, bar, nullptr}, {type, id, tag, visible, true})) return found;
        }
        return {};
    }

    Object active_menu_bar() { return made(all().front()); }

    BarsOf of_;
};

const MemberTable<CommandBarsObject>& CommandBarsObject::members() {
    using C = CommandBarsObject;
    static const MemberTable<C> table(rows_with({
        property<&C::active_menu_bar>(u"ActiveMenuBar"),
        method<&C::add>(u"Add", {u"Name", u"Position", u"MenuBar", u"Temporary"}),
        method<&C::find>(u"FindControl", {u"Type", u"Id", u"Tag", u"Visible"}),
    }));
    return table;
}

}  // namespace

Object make_command_bars(HostPointer host) {
    auto bars = Bars::of(host->context());
    return make_object<CommandBarsObject>(BarsOf{std::move(host), std::move(bars)});
}

}  // namespace qor::calc
