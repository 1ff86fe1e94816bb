#include <limits>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"

namespace qor::calc {

Object make_range(RangeAreas areas) {
    return make_object<RangeObject>(std::move(areas));
}

std::vector<Variant> RangeObject::elements() const {
    std::vector<Variant> result;
    const Sheet& sheet = areas_.sheet;
    for (std::size_t i = 0; i < areas_.areas.size(); ++i) {
        const Rectangle area = areas_.rectangle(i);
        const auto add = [&](const Rectangle& part) {
            result.emplace_back(make_range(range_at(sheet, part, areas_.unit)));
        };
        if (areas_.unit == RangeUnit::columns) {
            for (std::int32_t c = area.left; c <= area.right; ++c) add({c, area.top, c, area.bottom});
            continue;
        }
        for (std::int32_t r = area.top; r <= area.bottom; ++r) {
            if (areas_.unit == RangeUnit::rows) {
                add({area.left, r, area.right, r});
                continue;
            }
            for (std::int32_t c = area.left; c <= area.right; ++c) add({c, r, c, r});
        }
    }
    return result;
}

std::int32_t RangeObject::count() {
    std::int64_t parts = 0;
    for (std::size_t i = 0; i < areas_.areas.size(); ++i) {
        const Rectangle area = areas_.rectangle(i);
        parts += areas_.unit == RangeUnit::rows      ? area.height()
                 : areas_.unit == RangeUnit::columns ? area.width()
                                                     : area.cells();
    }
    if (parts > std::numeric_limits<std::int32_t>::max()) throw Error(ErrorNumber::overflow);
    return static_cast<std::int32_t>(parts);
}

std::int32_t RangeObject::row() {
    return areas_.rectangle().top + 1;
}

std::int32_t RangeObject::column() {
    return areas_.rectangle().left + 1;
}

Object RangeObject::name() {
    auto name = name_of_cells(areas_);
    if (!name) throw Error(ErrorNumber::host_refused);
    return make_name(*std::move(name));
}

void RangeObject::set_name(const std::u16string& name) {
    define_name(areas_.sheet.book, name, u"=" + reference_to(areas_));
}

Object RangeObject::worksheet() {
    return make_worksheet(areas_.sheet);
}

Object RangeObject::application() {
    return make_application(areas_.sheet.book.host);
}

void RangeObject::select() {
    qor::calc::select(areas_);
}

void RangeObject::activate() {
    qor::calc::select(areas_);
}

const MemberTable<RangeObject>& RangeObject::members() {
    using R = RangeObject;
    static const std::vector<std::u16string_view> address_parameters{u"RowAbsolute", u"ColumnAbsolute",
                                                                     u"ReferenceStyle", u"External", u"RelativeTo"};
    static const MemberTable<R> table({
        method<&R::activate>(u"Activate"),
        method<&R::add_comment>(u"AddComment", {u"Text"}),
        property<&R::address>(u"Address", address_parameters),
        property<&R::address>(u"AddressLocal", address_parameters),
        property<&R::application>(u"Application"),
        property<&R::part_areas>(u"Areas", {u"Index"}),
        property<&R::borders>(u"Borders", {u"Index"}),
        property<&R::cells>(u"Cells", {u"RowIndex", u"ColumnIndex"}),
        method<&R::check_spelling>(u"CheckSpelling"),
        method<&R::clear>(u"Clear"),
        method<&R::clear_contents>(u"ClearContents"),
        property<&R::column>(u"Column"),
        property<&R::column_width, &R::set_column_width>(u"ColumnWidth"),
        property<&R::columns>(u"Columns", {u"Index"}),
        property<&R::comment>(u"Comment"),
        method<&R::copy>(u"Copy", {u"Destination"}),
        property<&R::count>(u"Count"),
        method<&R::remove>(u"Delete", {u"Shift"}),
        property<&R::entire_column>(u"EntireColumn"),
        property<&R::entire_row>(u"EntireRow"),
        method<&R::find>(u"Find", {u"What", u"After", u"LookIn", u"LookAt", u"SearchOrder", u"SearchDirection",
                                   u"MatchCase", u"MatchByte", u"SearchFormat"}),
        property<&R::font>(u"Font"),
        property<&R::format_conditions>(u"FormatConditions", {u"Index"}),
        property<&R::formula, &R::set_value>(u"Formula"),
        property<&R::formula_array, &R::set_formula_array>(u"FormulaArray"),
        property<&R::formula_hidden, &R::set_formula_hidden>(u"FormulaHidden"),
        property<&R::has_array>(u"HasArray"),
        property<&R::has_formula>(u"HasFormula"),
        property<&R::hidden, &R::set_hidden>(u"Hidden"),
        property<&R::horizontal_alignment, &R::set_horizontal_alignment>(u"HorizontalAlignment"),
        property<&R::hyperlinks>(u"Hyperlinks"),
        method<&R::insert>(u"Insert", {u"Shift", u"CopyOrigin"}),
        property<&R::interior>(u"Interior"),
        property<&R::item>(u"Item", {u"RowIndex", u"ColumnIndex"}),
        property<&R::locked, &R::set_locked>(u"Locked"),
        property<&R::merge_cells>(u"MergeCells"),
        property<&R::name, &R::set_name>(u"Name"),
        property<&R::number_format, &R::set_number_format>(u"NumberFormat"),
        property<&R::worksheet>(u"Parent"),
        method<&R::paste_special>(u"PasteSpecial", {u"Paste"}),
        property<&R::range>(u"Range", {u"Cell1", u"Cell2"}),
        property<&R::row>(u"Row"),
        property<&R::row_height, &R::set_row_height>(u"RowHeight"),
        property<&R::rows>(u"Rows", {u"Index"}),
        method<&R::select>(u"Select"),
        method<&R::special_cells>(u"SpecialCells", {u"Type", u"Value"}),
        property<&R::text>(u"Text"),
        property<&R::value, &R::set_value>(u"Value"),
        property<&R::value2, &R::set_value>(u"Value2"),
        property<&R::worksheet>(u"Worksheet"),
        property<&R::wrap_text, &R::set_wrap_text>(u"WrapText"),
    });
    return table;
}

}  // namespace qor::calc
