#pragma once

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// Whether dates and money come in types of their own, as Value gives them, or as plain numbers, as Value2 does.
enum class Typing : std::uint8_t { typed, plain };

// What the cells hold, as Excel gives it: one value for one cell, a table counted from 1 for more. The number of calls
// into the office grows with the number of formats in the range, not with its cells.
// The result of a formula that only tests or compares is a Boolean, whatever its format says.
Variant read_values(const Sheet& sheet, const Cells& cells, Typing typing);
// What was entered into the cells, formulas in Excel's notation. Always text; empty for a blank cell.
Variant read_formulas(const Sheet& sheet, const Cells& cells);

struct FormulaCounts {
    std::int64_t cells = 0;
    std::int64_t formulas = 0;  // in cells; constants that the office keeps as formulas are not counted
    std::int64_t in_arrays = 0;
};
FormulaCounts count_formulas(const Sheet& sheet, const Cells& cells);

}  // namespace qor::calc
