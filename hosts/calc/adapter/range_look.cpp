#include <algorithm>
#include <array>
#include <cmath>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/XMergeable.hpp>
#include <functional>

#include "hosts/calc/adapter/attributes.hpp"
#include "hosts/calc/adapter/number_formats.hpp"
#include "hosts/calc/adapter/range_object.hpp"

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
    Alignment{1, css::table::CellHoriJustify_STANDARD},   Alignment{-4131, css::table::CellHoriJustify_LEFT},
    Alignment{-4108, css::table::CellHoriJustify_CENTER}, Alignment{-4152, css::table::CellHoriJustify_RIGHT},
    Alignment{-4130, css::table::CellHoriJustify_BLOCK},  Alignment{5, css::table::CellHoriJustify_REPEAT},
    Alignment{7, css::table::CellHoriJustify_CENTER},
};

constexpr double points_per_inch = 72;
constexpr double twips_per_point = 20;  // the office keeps heights in these
constexpr double twips_per_inch = points_per_inch * twips_per_point;
constexpr double units_per_inch = 2540;      // the office measures in hundredths of a millimetre
constexpr double units_per_character = 224;  // a digit of the default font, as the office counts in its own xlsx files

double rounded(double value) {
    return std::round(value * 100) / 100;
}

Ref<css::table::XColumnRowRange> columns_and_rows(const RangeAreas& areas) {
    return Ref<css::table::XColumnRowRange>(areas.areas.front());
}

std::optional<std::int32_t> shared_length(const Ref<css::uno::XInterface>& strips, const char* name) {
    const Ref<css::container::XIndexAccess> all(strips);
    std::optional<std::int32_t> result;
    for (sal_Int32 i = 0, count = all->getCount(); i < count; ++i) {
        const auto one = get_property<sal_Int32>(Ref<css::uno::XInterface>(all->getByIndex(i)), name);
        if (result && *result != one) return {};
        result = one;
    }
    return result;
}

}  // namespace

Variant RangeObject::number_format() {
    return answer(shared_attribute<sal_Int32>(areas_, "NumberFormat"),
                  [&](sal_Int32 key) { return number_format_code(areas_.sheet.book, key); });
}

void RangeObject::set_number_format(const std::u16string& format) {
    set_attribute(areas_, "NumberFormat", number_format_key(areas_.sheet.book, format));
}

Variant RangeObject::horizontal_alignment() {
    return answer(shared_attribute<CellHoriJustify>(areas_, "HoriJustify"), [](CellHoriJustify justify) {
        return std::ranges::find(alignments, justify, &Alignment::calc)->excel;
    });
}

void RangeObject::set_horizontal_alignment(std::int32_t alignment) {
    const auto* row = std::ranges::find(alignments, alignment, &Alignment::excel);
    if (row == alignments.end()) throw Error(ErrorNumber::host_refused);
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
    auto protection = get_property<CellProtection>(areas_.whole(), "CellProtection");
    protection.IsLocked = locked;
    set_attribute(areas_, "CellProtection", protection);
}

Variant RangeObject::formula_hidden() {
    return answer(shared_attribute<CellProtection>(areas_, "CellProtection"),
                  [](const CellProtection& protection) { return bool(protection.IsFormulaHidden); });
}

void RangeObject::set_formula_hidden(bool hidden) {
    auto protection = get_property<CellProtection>(areas_.whole(), "CellProtection");
    protection.IsFormulaHidden = hidden;
    set_attribute(areas_, "CellProtection", protection);
}

// Whether the first cell belongs to merged ones.
Variant RangeObject::merge_cells() {
    const Rectangle area = areas_.rectangle();
    const css::uno::Reference<css::sheet::XSheetCellRange> first(
        cells_at(areas_.sheet, {area.left, area.top, area.left, area.top}).reference(), css::uno::UNO_QUERY);
    const Ref cursor{areas_.sheet.sheet->createCursorByRange(first)};
    cursor->collapseToMergedArea();
    return rectangle_of(Cells(cursor)).cells() > 1;
}

Variant RangeObject::column_width() {
    const Ref<css::uno::XInterface> columns(Ref{columns_and_rows(areas_)->getColumns()});
    return answer(shared_length(columns, "Width"),
                  [](std::int32_t width) { return rounded(width / units_per_character); });
}

void RangeObject::set_column_width(double characters) {
    before_formatting(areas_);
    set_property(Ref{columns_and_rows(areas_)->getColumns()}, "Width",
                 static_cast<sal_Int32>(std::lround(characters * units_per_character)));
}

Variant RangeObject::row_height() {
    const Ref<css::uno::XInterface> rows(Ref{columns_and_rows(areas_)->getRows()});
    return answer(shared_length(rows, "Height"), [](std::int32_t height) {
        return std::round(height * twips_per_inch / units_per_inch) / twips_per_point;
    });
}

void RangeObject::set_row_height(double points) {
    before_formatting(areas_);
    set_property(Ref{columns_and_rows(areas_)->getRows()}, "Height",
                 static_cast<sal_Int32>(std::lround(points * units_per_inch / points_per_inch)));
}

// Of whole rows and whole columns only.
Variant RangeObject::hidden() {
    const auto strips = columns_and_rows(areas_);
    const bool visible = areas_.unit == RangeUnit::columns ? get_property<bool>(Ref{strips->getColumns()}, "IsVisible")
                                                           : get_property<bool>(Ref{strips->getRows()}, "IsVisible");
    return !visible;
}

void RangeObject::set_hidden(bool hidden) {
    before_formatting(areas_);
    const auto strips = columns_and_rows(areas_);
    if (areas_.unit == RangeUnit::columns) {
        set_property(Ref{strips->getColumns()}, "IsVisible", !hidden);
    } else {
        set_property(Ref{strips->getRows()}, "IsVisible", !hidden);
    }
}

Object RangeObject::font() {
    return make_font(areas_);
}

Object RangeObject::interior() {
    return make_interior(areas_);
}

Variant RangeObject::borders(const Variant& index) {
    const Object all = make_borders(areas_);
    return index.is_missing() ? Variant(all) : all.get(names::Item, index);
}

}  // namespace qor::calc
