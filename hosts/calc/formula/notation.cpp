#include "hosts/calc/formula/notation.hpp"

#include <algorithm>

namespace qor::calc {
namespace {

constexpr std::u16string_view deleted_part = u"#REF!";

bool starts_at(std::u16string_view text, std::size_t position, std::u16string_view part) {
    return text.substr(std::min(position, text.size())).starts_with(part);
}

bool take_sign(std::u16string_view text, std::size_t& position, char16_t sign) {
    if (position >= text.size() || text[position] != sign) return false;
    ++position;
    return true;
}

bool take_deleted(std::u16string_view text, std::size_t& position) {
    if (!starts_at(text, position, deleted_part)) return false;
    position += deleted_part.size();
    return true;
}

// -1 when there are no letters, or more than the last column has.
std::int32_t take_column(std::u16string_view text, std::size_t& position) {
    std::int32_t number = 0;
    std::size_t end = position;
    for (; end < text.size() && is_letter(text[end]) && number <= column_limit; ++end) {
        number = number * 26 + ((text[end] | 0x20) - u'a' + 1);
    }
    if (end == position || number > column_limit) return -1;
    position = end;
    return number - 1;
}

std::int32_t take_row(std::u16string_view text, std::size_t& position) {
    std::int32_t number = 0;
    std::size_t end = position;
    for (; end < text.size() && is_digit(text[end]) && number <= row_limit; ++end)
        number = number * 10 + (text[end] - u'0');
    if (end == position || number == 0 || number > row_limit) return -1;
    position = end;
    return number - 1;
}

}  // namespace

std::optional<Corner> take_corner(std::u16string_view text, std::size_t& position) {
    Corner corner;
    std::size_t at = position;
    bool fixed = take_sign(text, at, u'$');
    bool column_deleted = false;
    bool row_deleted = false;
    if (take_deleted(text, at)) {
        column_deleted = true;
    } else {
        corner.column = take_column(text, at);
    }
    if (corner.column >= 0 || column_deleted) {
        corner.column_fixed = fixed;
        fixed = take_sign(text, at, u'$');
    }
    corner.row = take_row(text, at);
    if (corner.row < 0 && (corner.column >= 0 || column_deleted)) row_deleted = take_deleted(text, at);
    corner.row_fixed = fixed && (corner.row >= 0 || row_deleted);
    if (fixed && corner.row < 0 && !row_deleted && (corner.column >= 0 || column_deleted)) return {};
    corner.deleted = column_deleted || row_deleted;
    if (!corner.deleted && corner.column < 0 && corner.row < 0) return {};
    if (at < text.size() && (is_word(text[at]) || text[at] == u'(')) return {};
    position = at;
    return corner;
}

std::u16string column_letters(std::int32_t column) {
    std::u16string letters;
    for (std::int32_t rest = column + 1; rest > 0; rest = (rest - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char16_t>(u'A' + (rest - 1) % 26));
    }
    return letters;
}

std::u16string corner_text(const Corner& corner) {
    if (corner.deleted) return std::u16string(deleted_part);
    std::u16string text;
    if (corner.column >= 0) {
        if (corner.column_fixed) text += u'$';
        text += column_letters(corner.column);
    }
    if (corner.row >= 0) {
        if (corner.row_fixed) text += u'$';
        for (const char digit : std::to_string(corner.row + 1)) text += static_cast<char16_t>(digit);
    }
    return text;
}

CornerPair whole_strips(CornerPair range) {
    auto& [first, last] = range;
    if (!first.is_cell() || !last.is_cell()) return range;
    if (first.column == 0 && last.column == column_limit - 1) {
        first.column = last.column = -1;
    } else if (first.row == 0 && last.row == row_limit - 1) {
        first.row = last.row = -1;
    }
    return range;
}

std::u16string range_text(const Corner& first, const Corner& last) {
    if (first.deleted || last.deleted) return std::u16string(deleted_part);
    const CornerPair range = whole_strips({first, last});
    return corner_text(range.first) + u":" + corner_text(range.last);
}

std::optional<CornerPair> parse_range(std::u16string_view text) {
    std::size_t position = 0;
    const auto first = take_corner(text, position);
    if (!first || first->deleted) return {};
    if (position == text.size()) return first->is_cell() ? std::optional(CornerPair{*first, *first}) : std::nullopt;
    if (!take_sign(text, position, u':')) return {};
    const auto last = take_corner(text, position);
    if (!last || last->deleted || position != text.size()) return {};
    if ((first->column < 0) != (last->column < 0) || (first->row < 0) != (last->row < 0)) return {};
    return CornerPair{*first, *last};
}

std::u16string take_quoted(std::u16string_view text, std::size_t& position) {
    const char16_t quote = text[position++];
    std::u16string content;
    while (position < text.size()) {
        const char16_t c = text[position++];
        if (c == quote && !take_sign(text, position, quote)) break;
        content += c;
    }
    return content;
}

std::u16string in_quotes(std::u16string_view text, char16_t quote) {
    std::u16string result(1, quote);
    for (const char16_t c : text) {
        if (c == quote) result += quote;
        result += c;
    }
    result += quote;
    return result;
}

bool needs_quotes(std::u16string_view sheet) {
    if (sheet.empty() || is_digit(sheet.front()) || sheet.front() == u'.') return true;
    if (!std::ranges::all_of(sheet, [](char16_t c) { return is_word(c) && c != u'\\' && c != u'?'; })) return true;
    std::size_t position = 0;
    if (take_corner(sheet, position) && position == sheet.size()) return true;
    // R, C and R1C1 are cells in the other style of references.
    position = 0;
    const auto take = [&](char16_t letter) {
        if (position >= sheet.size() || (sheet[position] | 0x20) != letter) return;
        ++position;
        while (position < sheet.size() && is_digit(sheet[position])) ++position;
    };
    take(u'r');
    take(u'c');
    return position == sheet.size();
}

std::u16string_view error_constant_at(std::u16string_view text, std::size_t position) {
    static constexpr std::array<std::u16string_view, 7> constants{u"#NULL!", u"#DIV/0!", u"#VALUE!", u"#REF!",
                                                                  u"#NAME?", u"#NUM!",   u"#N/A"};
    const auto* found = std::ranges::find_if(
        constants, [&](std::u16string_view constant) { return starts_at(text, position, constant); });
    return found == constants.end() ? std::u16string_view{} : *found;
}

}  // namespace qor::calc
