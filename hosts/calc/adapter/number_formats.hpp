#pragma once

#include "hosts/calc/adapter/number_kinds.hpp"

namespace qor::calc {

// The workbook's key for a format in Excel's notation, made if need be. Raises 1004 for a text that is no format.
std::int32_t number_format_key(const Book& book, std::u16string_view code);
// The format of that key in Excel's notation.
std::u16string number_format_code(const Book& book, std::int32_t key);

// Sees to it that the numbers just written show as what they are: a date or money where the cell has no format yet, a
// Boolean always. A cell that showed Booleans goes back to no format when it holds something else now.
void apply_number_kinds(const Sheet& sheet, const Rectangle& area, const std::vector<NumberKind>& kinds);

}  // namespace qor::calc
