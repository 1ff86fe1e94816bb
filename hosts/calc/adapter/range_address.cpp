#include "hosts/calc/adapter/range_address.hpp"

#include "hosts/calc/formula/notation.hpp"

namespace qor::calc {
namespace {

std::u16string number(std::int32_t value) {
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

// R5, R[2] or R.
std::u16string part_in_r1c1(char16_t letter, std::int32_t place, bool fixed, std::int32_t base) {
    std::u16string text(1, letter);
    if (fixed) return text + number(place + 1);
    return place == base ? text : text + u"[" + number(place - base) + u"]";
}

std::u16string address_in_r1c1(const Rectangle& area, const AddressStyle& style) {
    const bool whole_rows = area.width() == column_limit;
    const bool whole_columns = area.height() == row_limit && !whole_rows;
    const auto corner = [&](std::int32_t row, std::int32_t column) {
        std::u16string text;
        if (!whole_columns) text += part_in_r1c1(u'R', row, style.row_fixed, style.base.top);
        if (!whole_rows) text += part_in_r1c1(u'C', column, style.column_fixed, style.base.left);
        return text;
    };
    const std::u16string first = corner(area.top, area.left);
    const std::u16string last = corner(area.bottom, area.right);
    return first == last ? first : first + u":" + last;
}

std::u16string prefix_of(const Sheet& sheet) {
    const std::u16string book = sheet.book.name();
    const std::u16string name = sheet.name();
    std::u16string prefix = u"[" + book + u"]" + name;
    if (needs_quotes(name) || needs_quotes(book)) prefix = in_quotes(prefix);
    return prefix + u"!";
}

}  // namespace

std::u16string address_of(const RangeAreas& areas, const AddressStyle& style) {
    std::u16string text;
    if (style.external) text = prefix_of(areas.sheet);
    for (std::size_t i = 0; i < areas.areas.size(); ++i) {
        const Rectangle area = areas.rectangle(i);
        if (i > 0) text += u",";
        text += style.r1c1 ? address_in_r1c1(area, style) : address_text(area, style.row_fixed, style.column_fixed);
    }
    return text;
}

std::u16string place_of(const RangeAreas& areas) {
    return address_of(areas, {.external = true});
}

}  // namespace qor::calc
