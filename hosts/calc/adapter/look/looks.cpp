#include "hosts/calc/adapter/look/looks.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

using Names = css::uno::Sequence<rtl::OUString>;

// The style comes first: setting it takes away what was set directly.
constexpr std::array given_back{"CellStyle",
                                "AsianVerticalMode",
                                "BottomBorder2",
                                "CellBackColor",
                                "CellProtection",
                                "CharColor",
                                "CharContoured",
                                "CharCrossedOut",
                                "CharEmphasis",
                                "CharFont",
                                "CharFontCharSet",
                                "CharFontCharSetAsian",
                                "CharFontCharSetComplex",
                                "CharFontFamily",
                                "CharFontFamilyAsian",
                                "CharFontFamilyComplex",
                                "CharFontName",
                                "CharFontNameAsian",
                                "CharFontNameComplex",
                                "CharFontPitch",
                                "CharFontPitchAsian",
                                "CharFontPitchComplex",
                                "CharFontStyleName",
                                "CharFontStyleNameAsian",
                                "CharFontStyleNameComplex",
                                "CharHeight",
                                "CharHeightAsian",
                                "CharHeightComplex",
                                "CharLocale",
                                "CharLocaleAsian",
                                "CharLocaleComplex",
                                "CharOverline",
                                "CharOverlineColor",
                                "CharOverlineHasColor",
                                "CharPosture",
                                "CharPostureAsian",
                                "CharPostureComplex",
                                "CharRelief",
                                "CharShadowed",
                                "CharStrikeout",
                                "CharUnderline",
                                "CharUnderlineColor",
                                "CharUnderlineHasColor",
                                "CharWeight",
                                "CharWeightAsian",
                                "CharWeightComplex",
                                "CharWordMode",
                                "DiagonalBLTR2",
                                "DiagonalTLBR2",
                                "HoriJustify",
                                "HoriJustifyMethod",
                                "IsCellBackgroundTransparent",
                                "IsTextWrapped",
                                "LeftBorder2",
                                "NumberFormat",
                                "Orientation",
                                "ParaBottomMargin",
                                "ParaIndent",
                                "ParaIsHyphenation",
                                "ParaLeftMargin",
                                "ParaRightMargin",
                                "ParaTopMargin",
                                "RightBorder2",
                                "RotateAngle",
                                "RotateReference",
                                "ShadowFormat",
                                "ShrinkToFit",
                                "TopBorder2",
                                "VertJustify",
                                "VertJustifyMethod",
                                "WritingMode"};
constexpr std::array not_given_back{"ConditionalFormat", "Validation"};

Names names_of_all() {
    Names names(static_cast<sal_Int32>(given_back.size() + not_given_back.size()));
    rtl::OUString* place = names.getArray();
    for (const char* name : given_back) *place++ = rtl::OUString::createFromAscii(name);
    for (const char* name : not_given_back) *place++ = rtl::OUString::createFromAscii(name);
    return names;
}

}  // namespace

Looks::Looks(const Cells& cells) {
    const Ref<css::container::XIndexAccess> all(
        Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges()});
    const sal_Int32 count = all->getCount();
    if (count <= 1) return;
    const Names names = names_of_all();
    const Rectangle area = rectangle_of(cells);
    for (sal_Int32 i = 0; i < count; ++i) {
        const Ref<css::sheet::XSheetCellRanges> places(all->getByIndex(i));
        Look look{Ref<css::uno::XInterface>(places),
                  Ref<css::beans::XMultiPropertySet>(places)->getPropertyValues(names),
                  Ref<css::beans::XPropertyState>(places)->getPropertyStates(names)};
        const auto addresses = places->getRangeAddresses();
        const bool holds_first = std::ranges::any_of(addresses, [&](const css::table::CellRangeAddress& at) {
            return at.StartColumn == area.left && at.StartRow == area.top;
        });
        looks_.insert(holds_first ? looks_.begin() : looks_.end(), std::move(look));
    }
}

bool Looks::can_be_given_back() const {
    return std::ranges::all_of(looks_, [](const Look& look) {
        return std::ranges::all_of(look.states.end() - not_given_back.size(), look.states.end(),
                                   [](auto state) { return state == css::beans::PropertyState_DEFAULT_VALUE; });
    });
}

void Looks::give_back() const {
    if (alike()) return;
    const Names names = names_of_all();
    const Look& first = looks_.front();
    for (auto look = looks_.begin() + 1; look != looks_.end(); ++look) {
        const bool other_style = look->values[0] != first.values[0];
        for (sal_Int32 i = 0; i < static_cast<sal_Int32>(given_back.size()); ++i) {
            const bool direct = look->states[i] == css::beans::PropertyState_DIRECT_VALUE;
            const bool same = look->states[i] == first.states[i] && look->values[i] == first.values[i];
            if (same && !(other_style && direct)) continue;
            if (direct || i == 0) {
                Ref<css::beans::XPropertySet>(look->cells)->setPropertyValue(names[i], look->values[i]);
            } else if (first.states[i] == css::beans::PropertyState_DIRECT_VALUE) {
                Ref<css::beans::XPropertyState>(look->cells)->setPropertyToDefault(names[i]);
            }
        }
    }
}

}  // namespace qor::calc
