#include "hosts/calc/formula/row_column.hpp"

namespace qor::calc {
namespace {

struct Coordinate {
    std::int32_t place;
    bool fixed;
};

// Reads the letter and what follows it: a number, an offset in brackets or nothing. Moves only when all of it is right.
std::optional<Coordinate> take_coordinate(std::u16string_view text, std::size_t& position, char16_t letter,
                                          std::int32_t base, std::int32_t limit) {
    const auto at = [&](std::size_t place) { return place < text.size() ? text[place] : u'\0'; };
    std::size_t end = position;
    if ((at(end) | 0x20) != letter) return {};
    ++end;
    const bool in_brackets = at(end) == u'[';
    if (in_brackets) ++end;
    const bool negative = in_brackets && at(end) == u'-';
    if (negative) ++end;
    const std::size_t digits = end;
    std::int32_t number = 0;
    for (; is_digit(at(end)) && number <= limit; ++end) number = number * 10 + (at(end) - u'0');
    if (in_brackets && (end == digits || at(end) != u']' || number >= limit)) return {};
    if (in_brackets) ++end;
    const bool fixed = !in_brackets && end > digits;
    if (fixed && (number == 0 || number > limit)) return {};
    position = end;
    if (fixed) return Coordinate{number - 1, true};
    return Coordinate{(base + (negative ? limit - number : number)) % limit, false};
}

std::u16string coordinate_text(char16_t letter, std::int32_t place, bool fixed, std::int32_t base) {
    std::u16string text(1, letter);
    const std::int32_t number = fixed ? place + 1 : place - base;
    if (!fixed && number == 0) return text;
    if (!fixed) text += u'[';
    for (const char c : std::to_string(number)) text += static_cast<char16_t>(c);
    if (!fixed) text += u']';
    return text;
}

}  // namespace

std::optional<Corner> take_row_column(std::u16string_view text, std::size_t& position, const CellPlace& base) {
    std::size_t at = position;
    const auto row = take_coordinate(text, at, u'r', base.row, row_limit);
    const auto column = take_coordinate(text, at, u'c', base.column, column_limit);
    if (!row && !column) return {};
    if (at < text.size() && (is_word(text[at]) || text[at] == u'(')) return {};
    position = at;
    Corner corner;
    if (row) corner.row = row->place;
    if (column) corner.column = column->place;
    corner.row_fixed = row && row->fixed;
    corner.column_fixed = column && column->fixed;
    return corner;
}

std::u16string row_column_text(const Corner& corner, const CellPlace& base) {
    if (corner.deleted) return corner_text(corner);
    std::u16string text;
    if (corner.row >= 0) text += coordinate_text(u'R', corner.row, corner.row_fixed, base.row);
    if (corner.column >= 0) text += coordinate_text(u'C', corner.column, corner.column_fixed, base.column);
    return text;
}

std::u16string row_column_range_text(const Corner& first, const Corner& last, const CellPlace& base) {
    if (first.deleted || last.deleted) return corner_text(first.deleted ? first : last);
    const CornerPair range = whole_strips({first, last});
    const std::u16string start = row_column_text(range.first, base);
    const std::u16string end = row_column_text(range.last, base);
    return start == end && !range.first.is_cell() ? start : start + u":" + end;
}

}  // namespace qor::calc
