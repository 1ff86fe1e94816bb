#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/range_address.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"
#include "hosts/calc/formula/notation.hpp"

namespace qor::calc {
namespace {

// Both ends of what an index names, from 0: a number from 1, a letter such as "B" or a pair such as "B:D" or "3:5".
std::pair<std::int32_t, std::int32_t> ends_named(const Variant& index, std::int32_t Corner::*wanted,
                                                 std::int32_t Corner::*other) {
    const auto* text = index.get_if<std::u16string>();
    if (!text) {
        const std::int32_t place = to_long(index) - 1;
        return {place, place};
    }
    const auto pair = parse_range(text->find(u':') == std::u16string::npos ? *text + u":" + *text : *text);
    if (!pair || pair->first.*wanted < 0 || pair->first.*other >= 0) throw Error(ErrorNumber::host_refused);
    return std::minmax(pair->first.*wanted, pair->last.*wanted);
}

Rectangle columns_named(const Variant& index, const Rectangle& within) {
    const auto [first, last] = ends_named(index, &Corner::column, &Corner::row);
    return {within.left + first, within.top, within.left + last, within.bottom};
}

Rectangle rows_named(const Variant& index, const Rectangle& within) {
    const auto [first, last] = ends_named(index, &Corner::row, &Corner::column);
    return {within.left, within.top + first, within.right, within.top + last};
}

Rectangle around(const Rectangle& a, const Rectangle& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

}  // namespace

Rectangle cell_named(const Variant& row, const Variant& column, const Rectangle& within) {
    const std::int32_t y = within.top + to_long(row) - 1;
    const std::int32_t x = within.left + columns_named(column, {}).left;
    return {x, y, x, y};
}

const RangeAreas& areas_of(const Variant& value) {
    const auto* range = dynamic_cast<const RangeObject*>(value.object().target());
    if (!range) throw Error(ErrorNumber::host_refused);
    return range->areas();
}

std::u16string RangeObject::address(std::optional<bool> row_fixed, std::optional<bool> column_fixed,
                                    std::optional<std::int32_t> style, std::optional<bool> external,
                                    const Variant& relative_to) {
    const auto asked = static_cast<ReferenceStyle>(style.value_or(number_of(ReferenceStyle::letters)));
    const bool known = asked == ReferenceStyle::letters || asked == ReferenceStyle::row_column;
    if (!known) throw Error(ErrorNumber::host_refused);
    return address_of(areas_, {.row_fixed = row_fixed.value_or(true),
                               .column_fixed = column_fixed.value_or(true),
                               .r1c1 = asked == ReferenceStyle::row_column,
                               .external = external.value_or(false),
                               .base = relative_to.is_missing() ? Rectangle{} : areas_of(relative_to).rectangle()});
}

// Cells count from the first area's corner and may lie outside of the range.
Object RangeObject::item(const Variant& first, const Variant& second) {
    const Rectangle area = areas_.rectangle();
    const Sheet& sheet = areas_.sheet;
    if (areas_.unit == RangeUnit::rows) return make_range(range_at(sheet, rows_named(first, area), areas_.unit));
    if (areas_.unit == RangeUnit::columns) return make_range(range_at(sheet, columns_named(first, area), areas_.unit));
    if (!second.is_missing()) return make_range(range_at(sheet, cell_named(first, second, area)));
    const std::int32_t place = to_long(first) - 1;
    const std::int32_t column = area.left + place % area.width();
    const std::int32_t row = area.top + place / area.width();
    return make_range(range_at(sheet, {column, row, column, row}));
}

Object RangeObject::cells(const Variant& row, const Variant& column) {
    RangeAreas all = areas_;
    all.unit = RangeUnit::cells;
    Object range = make_range(std::move(all));
    return row.is_missing() ? range : Object(range.get(names::Item, row, column));
}

// Rows and columns are those of the first area.
Object RangeObject::strips(RangeUnit unit, const Variant& index) {
    return item_or_all(make_range({areas_.sheet, {areas_.areas.front()}, unit}), index);
}

Object RangeObject::rows(const Variant& index) {
    return strips(RangeUnit::rows, index);
}

Object RangeObject::columns(const Variant& index) {
    return strips(RangeUnit::columns, index);
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
    return item_or_all(make_areas(areas_), index);
}

Object RangeObject::entire_row() {
    return make_range(whole_strips(areas_, RangeUnit::rows));
}

Object RangeObject::entire_column() {
    return make_range(whole_strips(areas_, RangeUnit::columns));
}

}  // namespace qor::calc
