#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The parts that cell references have in both notations. Rows and columns count from 0.
namespace qor::calc {

inline constexpr std::int32_t row_limit = 1048576;
inline constexpr std::int32_t column_limit = 16384;

constexpr bool is_letter(char16_t c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}
constexpr bool is_digit(char16_t c) {
    return c >= u'0' && c <= u'9';
}
// May stand in a name of a function, a sheet or a range. A surrogate is part of a letter.
constexpr bool is_word(char16_t c) {
    return is_letter(c) || is_digit(c) || c == u'_' || c == u'.' || c == u'\\' || c == u'?' || c >= 0x80;
}

// One end of a reference: a cell, a whole column (no row) or a whole row (no column).
struct Corner {
    std::int32_t column = -1;
    std::int32_t row = -1;
    bool column_fixed = false;
    bool row_fixed = false;
    bool deleted = false;  // some part of it reads #REF!

    bool is_cell() const { return column >= 0 && row >= 0; }
};

// Reads a corner at `position`, which moves behind it; none when there stands something else, such as a name that
// begins like a cell. Letters are read in either case.
std::optional<Corner> take_corner(std::u16string_view text, std::size_t& position);

std::u16string column_letters(std::int32_t column);
std::u16string corner_text(const Corner& corner);
// Whole columns as A:C and whole rows as 1:3; "#REF!" if one is deleted. Both have to be of one kind.
std::u16string range_text(const Corner& first, const Corner& last);

struct CornerPair {
    Corner first;
    Corner last;
};
// A range of cells from edge to edge of the sheet as the whole rows or columns that it is.
CornerPair whole_strips(CornerPair range);

// A reference as the user writes it, without a sheet: A1, $A$1:B2, A:C, 1:3. None if it is something else.
std::optional<CornerPair> parse_range(std::u16string_view text);

// The text between the quotes at `position`, with doubled quotes made single; `position` moves behind the last quote.
std::u16string take_quoted(std::u16string_view text, std::size_t& position);
// Puts quotes around the text and doubles those in it.
std::u16string in_quotes(std::u16string_view text, char16_t quote = u'\'');
// Whether Excel needs quotes around this sheet's name in a formula.
bool needs_quotes(std::u16string_view sheet);

// The error constant at this position, such as "#N/A"; empty if there is none.
std::u16string_view error_constant_at(std::u16string_view text, std::size_t position);

}  // namespace qor::calc
