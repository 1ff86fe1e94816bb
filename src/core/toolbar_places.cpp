#include "core/toolbar_places.hpp"

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/CReg.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

constexpr std::int32_t default_left = 65;
constexpr std::int32_t default_height = 49;

std::u16string kept(const MenuToolbar& toolbar, const MemberName& property, std::u16string_view standard) {
    return CReg(environment().settings).GetSetting(RootKey::current_user, toolbar.section, property.text(), standard);
}

}  // namespace

void save_place(const MenuToolbar& toolbar, const Object& bar) {
    CReg settings(environment().settings);
    for (const MemberName* property : {&names::Height, &names::Left, &names::Position, &names::RowIndex, &names::Top,
                                       &names::Visible, &names::Width}) {
        attempt([&] {
            settings.SaveSetting(RootKey::current_user, toolbar.section, property->text(), to_text(bar.get(*property)));
        });
    }
}

void restore_place(const MenuToolbar& toolbar, const Object& bar) {
    const auto restore = [&](const MemberName& property, std::int32_t standard) {
        std::int32_t value = standard;
        attempt([&] {
            value = to_long(kept(toolbar, property, to_text(standard)));
            bar.put(property, value);
        });
        return value;
    };
    constexpr std::int32_t floating = number_of(BarPosition::floating);  // a position below it is docked
    if (restore(names::Position, floating) < floating) {
        restore(names::RowIndex, numbers::bar_row::any);
    } else {
        restore(names::Height, default_height);
        restore(names::Top, toolbar.top);
        restore(names::Width, toolbar.width);
    }
    restore(names::Left, default_left);
    attempt([&] { bar.put(names::Visible, to_boolean(kept(toolbar, names::Visible, u"True"))); });
}

}  // namespace qor
