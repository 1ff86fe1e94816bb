#include <algorithm>
#include <array>
#include <cmath>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/XMergeable.hpp>
#include <functional>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/look/attributes.hpp"
#include "hosts/calc/adapter/look/digit_width.hpp"
#include "hosts/calc/adapter/look/kept_row_heights.hpp"
#include "hosts/calc/adapter/look/number_formats.hpp"
#include "hosts/calc/adapter/look/scattered_formats.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

using css::table::CellHoriJustify;
using css::util::CellProtection;

struct Alignment {
    std::int32_t excel;
    CellHoriJustify calc;
};
// Of several numbers for one justification the first one is answered.
constexpr std::array alignments{
    Alignment{numbers::alignment::general, css::table::CellHoriJustify_STANDARD},
    Alignment{numbers::alignment::left, css::table::CellHoriJustify_LEFT},
    Alignment{numbers::alignment::centre, css::table::CellHoriJustify_CENTER},
    Alignment{numbers::alignment::right, css::table::CellHoriJustify_RIGHT},
    Alignment{numbers::alignment::justify, css::table::CellHoriJustify_BLOCK},
    Alignment{numbers::alignment::fill, css::table::CellHoriJustify_REPEAT},
    Alignment{numbers::alignment::centre_across_selection, css::table::CellHoriJustify_CENTER},
};

constexpr double points_per_inch = 72;
constexpr double twips_per_point = 20;  // the office keeps heights in these
constexpr double twips_per_inch = points_per_inch * twips_per_point;
constexpr double units_per_inch = 2540;  // the office measures in hundredths of a millimetre

enum class Strip : std::uint8_t { column, row };

Ref<css::container::XIndexAccess> strips_of(const Cells& cells, Strip kind) {
    const Ref<css::table::XColumnRowRange> both(cells);
    return kind == Strip::column ? Ref<css::container::XIndexAccess>(Ref{both->getColumns()})
                                 : Ref<css::container::XIndexAccess>(Ref{both->getRows()});
}

// In hundredths of a millimetre, 0 for what is hidden; none when they differ.
std::optional<std::int32_t> shared_length(const RangeAreas& areas, Strip kind, const char* name) {
    std::optional<std::int32_t> result;
    for (const Cells& cells : areas.areas) {
        const auto strips = strips_of(cells, kind);
        for (sal_Int32 i = 0, count = strips->getCount(); i < count; ++i) {
            const Ref<css::beans::XPropertySet> strip(strips->getByIndex(i));
            const auto one = get_property<bool>(strip, "IsVisible") ? get_property<sal_Int32>(strip, name) : 0;
            if (result && *result != one) return {};
            result = one;
        }
    }
    return result;
}

// A length of 0 hides.
void set_length(const RangeAreas& areas, Strip kind, const char* name, std::int32_t length) {
    before_formatting(areas);
    for (const Cells& cells : areas.areas) {
        const auto strips = strips_of(cells, kind);
        if (length > 0) set_property(strips, name, length);
        set_property(strips, "IsVisible", length > 0);
    }
}

// Locked and hidden stand in one attribute, so cells that differ in it are changed by their looks.
template <class Change>
void change_protection(const RangeAreas& areas, Change change) {
    constexpr const char* name = "CellProtection";
    before_formatting(areas);
    const auto change_in = [&](const Ref<css::uno::XInterface>& cells) {
        auto protection = get_property<CellProtection>(cells, name);
        change(protection);
        set_property(cells, name, protection);
    };
    for (const Cells& cells : areas.areas) {
        const auto state =
            Ref<css::beans::XPropertyState>(cells)->getPropertyState(rtl::OUString::createFromAscii(name));
        if (state != css::beans::PropertyState_AMBIGUOUS_VALUE) {
            change_in(Ref<css::uno::XInterface>(cells));
            continue;
        }
        const Ref<css::container::XIndexAccess> looks(
            Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges()});
        std::vector<Ref<css::uno::XInterface>> runs;
        for (sal_Int32 i = 0, count = looks->getCount(); i < count; ++i) runs.emplace_back(looks->getByIndex(i));
        for (const auto& run : runs) change_in(run);
    }
}

}  // namespace

Variant RangeObject::number_format() {
    return answer(shared_attribute<sal_Int32>(areas_, "NumberFormat"),
                  [&](sal_Int32 key) { return number_format_code(areas_.sheet.book, key); });
}

void RangeObject::set_number_format(const Variant& format) {
    const KeptRowHeights heights(areas_.sheet.book.document);
    if (const Array* codes = format.array()) return write_number_formats(areas_, *codes);
    const std::int32_t key = number_format_key(areas_.sheet.book, to_text(format));
    if (!areas_.areas.together()) return set_attribute(areas_, "NumberFormat", key);
    before_formatting(areas_);
    set_scattered_format(areas_, key);
}

Variant RangeObject::horizontal_alignment() {
    return answer(shared_attribute<CellHoriJustify>(areas_, "HoriJustify"), [](CellHoriJustify justify) {
        return std::ranges::find(alignments, justify, &Alignment::calc)->excel;
    });
}

void RangeObject::set_horizontal_alignment(std::int32_t alignment) {
    const auto* row = std::ranges::find(alignments, alignment, &Alignment::excel);
    if (row == alignments.end()) throw Error(ErrorNumber::host_refused);
    const KeptRowHeights heights(areas_.sheet.book.document);
    set_attribute(areas_, "HoriJustify", row->calc);
}

Variant RangeObject::wrap_text() {
    return answer(shared_attribute<bool>(areas_, "IsTextWrapped"), std::identity());
}

void RangeObject::set_wrap_text(bool wrap) {
    set_attribute(areas_, "IsTextWrapped", wrap);
}

Variant RangeObject::locked() {
    return answer(shared_attribute<CellProtection>(areas_, "CellProtection"),
                  [](const CellProtection& protection) { return bool(protection.IsLocked); });
}

void RangeObject::set_locked(bool locked) {
    change_protection(areas_, [&](CellProtection& protection) { protection.IsLocked = locked; });
}

Variant RangeObject::formula_hidden() {
    return answer(shared_attribute<CellProtection>(areas_, "CellProtection"),
                  [](const CellProtection& protection) { return bool(protection.IsFormulaHidden); });
}

void RangeObject::set_formula_hidden(bool hidden) {
    change_protection(areas_, [&](CellProtection& protection) { protection.IsFormulaHidden = hidden; });
}

// Whether the first cell belongs to merged ones.
Variant RangeObject::merge_cells() {
    const Rectangle area = areas_.rectangle();
    const Ref<css::sheet::XSheetCellRange> first(cells_at(areas_.sheet, {area.left, area.top, area.left, area.top}));
    const Ref cursor{areas_.sheet.sheet->createCursorByRange(first.reference())};
    cursor->collapseToMergedArea();
    return rectangle_of(Cells(cursor)).cells() > 1;
}

Variant RangeObject::column_width() {
    const DigitWidth digit(areas_.sheet.book);
    return answer(shared_length(areas_, Strip::column, "Width"),
                  [&](std::int32_t width) { return digit.characters_in(width); });
}

void RangeObject::set_column_width(double characters) {
    constexpr double most_characters = 255;
    if (characters < 0 || characters > most_characters) throw Error(ErrorNumber::host_refused);
    const DigitWidth digit(areas_.sheet.book);
    set_length(areas_, Strip::column, "Width", digit.width_of(characters));
}

Variant RangeObject::row_height() {
    return answer(shared_length(areas_, Strip::row, "Height"), [](std::int32_t height) {
        return std::round(height * twips_per_inch / units_per_inch) / twips_per_point;
    });
}

void RangeObject::set_row_height(double points) {
    constexpr double most_points = 409.5;
    if (points < 0 || points > most_points) throw Error(ErrorNumber::host_refused);
    set_length(areas_, Strip::row, "Height",
               static_cast<std::int32_t>(std::lround(points * units_per_inch / points_per_inch)));
}

// Of whole rows and whole columns only.
Variant RangeObject::hidden() {
    const Strip kind = areas_.unit == RangeUnit::columns ? Strip::column : Strip::row;
    return !get_property<bool>(strips_of(areas_.areas.front(), kind), "IsVisible");
}

void RangeObject::set_hidden(bool hidden) {
    before_formatting(areas_);
    const Strip kind = areas_.unit == RangeUnit::columns ? Strip::column : Strip::row;
    for (const Cells& cells : areas_.areas) set_property(strips_of(cells, kind), "IsVisible", !hidden);
}

Object RangeObject::font() {
    return make_font(areas_);
}

Object RangeObject::interior() {
    return make_interior(areas_);
}

Variant RangeObject::borders(const Variant& index) {
    return item_or_all(make_borders(areas_), index);
}

}  // namespace qor::calc
