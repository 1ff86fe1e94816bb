#include <limits>

#include "hosts/calc/adapter/range_object.hpp"
#include "hosts/calc/adapter/selection.hpp"
#include "hosts/calc/formula/notation.hpp"

namespace qor::calc {
namespace {

// The columns that an index names: a number from 1, "B" or "B:D", counted from the left edge of the range.
Rectangle columns_named(const Variant& index, const Rectangle& within) {
    const auto* text = index.get_if<std::u16string>();
    std::int32_t first = 0;
    std::int32_t last = 0;
    if (text) {
        const auto pair = parse_range(text->find(u':') == std::u16string::npos ? *text + u":" + *text : *text);
        if (!pair || pair->first.column < 0 || pair->first.row >= 0) throw Error(ErrorNumber::host_refused);
        first = std::min(pair->first.column, pair->last.column);
        last = std::max(pair->first.column, pair->last.column);
    } else {
        first = last = to_long(index) - 1;
    }
    return {within.left + first, within.top, within.left + last, within.bottom};
}

Rectangle rows_named(const Variant& index, const Rectangle& within) {
    const auto* text = index.get_if<std::u16string>();
    std::int32_t first = 0;
    std::int32_t last = 0;
    if (text) {
        const auto pair = parse_range(text->find(u':') == std::u16string::npos ? *text + u":" + *text : *text);
        if (!pair || pair->first.row < 0 || pair->first.column >= 0) throw Error(ErrorNumber::host_refused);
        first = std::min(pair->first.row, pair->last.row);
        last = std::max(pair->first.row, pair->last.row);
    } else {
        first = last = to_long(index) - 1;
    }
    return {within.left, within.top + first, within.right, within.top + last};
}

const RangeAreas& areas_of(const Variant& value) {
    const auto* range = dynamic_cast<const RangeObject*>(value.object().target());
    if (!range) throw Error(ErrorNumber::host_refused);
    return range->areas();
}

Rectangle around(const Rectangle& a, const Rectangle& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

class AreasObject final : public CalcObject<AreasObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Areas";

    explicit AreasObject(RangeAreas areas) : areas_(std::move(areas)) {}

    static const MemberTable<AreasObject>& members() {
        static const MemberTable<AreasObject> table({
            property<&AreasObject::count>(u"Count"),
            property<&AreasObject::item>(u"Item", {u"Index"}),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const Cells& cells : areas_.areas) {
            result.emplace_back(make_range({areas_.sheet, {cells}, areas_.unit}));
        }
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(areas_.areas.size()); }
    Object item(std::int32_t index) {
        return make_range({areas_.sheet, {element_at(areas_.areas, index)}, areas_.unit});
    }

    RangeAreas areas_;
};

}  // namespace

Object make_range(RangeAreas areas) {
    return make_object<RangeObject>(std::move(areas));
}

std::vector<Variant> RangeObject::elements() const {
    std::vector<Variant> result;
    const Sheet& sheet = areas_.sheet;
    for (std::size_t i = 0; i < areas_.areas.size(); ++i) {
        const Rectangle area = areas_.rectangle(i);
        const auto add = [&](const Rectangle& part) { result.emplace_back(make_range(range_at(sheet, part))); };
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
    if (areas_.unit == RangeUnit::rows) return areas_.rectangle().height();
    if (areas_.unit == RangeUnit::columns) return areas_.rectangle().width();
    std::int64_t cells = 0;
    for (std::size_t i = 0; i < areas_.areas.size(); ++i) cells += areas_.rectangle(i).cells();
    if (cells > std::numeric_limits<std::int32_t>::max()) throw Error(ErrorNumber::overflow);
    return static_cast<std::int32_t>(cells);
}

std::int32_t RangeObject::row() {
    return areas_.rectangle().top + 1;
}

std::int32_t RangeObject::column() {
    return areas_.rectangle().left + 1;
}

std::u16string RangeObject::address(std::optional<bool> row_fixed, std::optional<bool> column_fixed,
                                    std::optional<std::int32_t> style, std::optional<bool> external) {
    constexpr std::int32_t a1_style = 1;
    if (style.value_or(a1_style) != a1_style) throw Error(ErrorNumber::host_refused);
    std::u16string prefix;
    if (external.value_or(false)) {
        const std::u16string book = areas_.sheet.book.name();
        const std::u16string sheet = areas_.sheet.name();
        prefix = u"[" + book + u"]" + sheet;
        if (needs_quotes(sheet) || needs_quotes(book)) prefix = in_quotes(prefix);
        prefix += u"!";
    }
    std::u16string text;
    for (std::size_t i = 0; i < areas_.areas.size(); ++i) {
        if (i > 0) text += u",";
        text += prefix;
        text += address_text(areas_.rectangle(i), row_fixed.value_or(true), column_fixed.value_or(true));
    }
    return text;
}

// Cells count from the first area's corner and may lie outside of the range.
Object RangeObject::item(const Variant& first, const Variant& second) {
    const Rectangle area = areas_.rectangle();
    const Sheet& sheet = areas_.sheet;
    if (areas_.unit == RangeUnit::rows) return make_range(range_at(sheet, rows_named(first, area), areas_.unit));
    if (areas_.unit == RangeUnit::columns) return make_range(range_at(sheet, columns_named(first, area), areas_.unit));
    std::int32_t row = to_long(first) - 1;
    std::int32_t column = 0;
    if (second.is_missing()) {
        column = row % area.width();
        row /= area.width();
    } else {
        column = columns_named(second, {}).left;
    }
    const Rectangle cell{area.left + column, area.top + row, area.left + column, area.top + row};
    return make_range(range_at(sheet, cell));
}

Object RangeObject::cells(const Variant& row, const Variant& column) {
    RangeAreas all = areas_;
    all.unit = RangeUnit::cells;
    Object range = make_range(std::move(all));
    return row.is_missing() ? range : Object(range.get(names::Item, row, column));
}

Object RangeObject::rows(const Variant& index) {
    RangeAreas all = areas_;
    all.unit = RangeUnit::rows;
    Object range = make_range(std::move(all));
    return index.is_missing() ? range : Object(range.get(names::Item, index));
}

Object RangeObject::columns(const Variant& index) {
    RangeAreas all = areas_;
    all.unit = RangeUnit::columns;
    Object range = make_range(std::move(all));
    return index.is_missing() ? range : Object(range.get(names::Item, index));
}

Object RangeObject::range(const Variant& first, const Variant& last) {
    const auto named = [&](const Variant& value) {
        const auto* text = value.get_if<std::u16string>();
        return text ? range_named(areas_.sheet, *text, areas_.rectangle()) : areas_of(value);
    };
    RangeAreas start = named(first);
    if (last.is_missing()) return make_range(std::move(start));
    const Rectangle both = around(start.rectangle(), named(last).rectangle());
    return make_range(range_at(start.sheet, both));
}

Object RangeObject::part_areas(const Variant& index) {
    Object all = make_object<AreasObject>(areas_);
    return index.is_missing() ? all : Object(all.get(names::Item, index));
}

Object RangeObject::entire_row() {
    Rectangle area = areas_.rectangle();
    area.left = 0;
    area.right = column_limit - 1;
    return make_range(range_at(areas_.sheet, area, RangeUnit::rows));
}

Object RangeObject::entire_column() {
    Rectangle area = areas_.rectangle();
    area.top = 0;
    area.bottom = row_limit - 1;
    return make_range(range_at(areas_.sheet, area, RangeUnit::columns));
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
                                                                     u"ReferenceStyle", u"External"};
    static const MemberTable<R> table({
        method<&R::activate>(u"Activate"),
        method<&R::add_comment>(u"AddComment", {u"Text"}),
        property<&R::address>(u"Address", address_parameters),
        property<&R::address>(u"AddressLocal", address_parameters),
        property<&R::application>(u"Application"),
        property<&R::part_areas>(u"Areas", {u"Index"}),
        property<&R::borders>(u"Borders", {u"Index"}),
        property<&R::cells>(u"Cells", {u"RowIndex", u"ColumnIndex"}),
        method<&R::clear_contents>(u"ClearContents"),
        property<&R::column>(u"Column"),
        property<&R::column_width, &R::set_column_width>(u"ColumnWidth"),
        property<&R::columns>(u"Columns", {u"Index"}),
        property<&R::comment>(u"Comment"),
        property<&R::count>(u"Count"),
        property<&R::entire_column>(u"EntireColumn"),
        property<&R::entire_row>(u"EntireRow"),
        property<&R::font>(u"Font"),
        property<&R::formula, &R::set_value>(u"Formula"),
        property<&R::formula_array, &R::set_formula_array>(u"FormulaArray"),
        property<&R::formula_hidden, &R::set_formula_hidden>(u"FormulaHidden"),
        property<&R::has_array>(u"HasArray"),
        property<&R::has_formula>(u"HasFormula"),
        property<&R::hidden, &R::set_hidden>(u"Hidden"),
        property<&R::horizontal_alignment, &R::set_horizontal_alignment>(u"HorizontalAlignment"),
        property<&R::hyperlinks>(u"Hyperlinks"),
        property<&R::interior>(u"Interior"),
        property<&R::item>(u"Item", {u"RowIndex", u"ColumnIndex"}),
        property<&R::locked, &R::set_locked>(u"Locked"),
        property<&R::merge_cells>(u"MergeCells"),
        property<&R::number_format, &R::set_number_format>(u"NumberFormat"),
        property<&R::worksheet>(u"Parent"),
        property<&R::range>(u"Range", {u"Cell1", u"Cell2"}),
        property<&R::row>(u"Row"),
        property<&R::row_height, &R::set_row_height>(u"RowHeight"),
        property<&R::rows>(u"Rows", {u"Index"}),
        method<&R::select>(u"Select"),
        property<&R::text>(u"Text"),
        property<&R::value, &R::set_value>(u"Value"),
        property<&R::value2, &R::set_value>(u"Value2"),
        property<&R::worksheet>(u"Worksheet"),
        property<&R::wrap_text, &R::set_wrap_text>(u"WrapText"),
    });
    return table;
}

}  // namespace qor::calc
