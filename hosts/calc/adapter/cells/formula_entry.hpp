#pragma once

#include <string>
#include <vector>

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// A formula for a cell, whose place counts from the corner of a range.
struct FormulaForCell {
    std::int32_t column;
    std::int32_t row;
    std::u16string text;     // in Calc's notation
    std::u16string pattern;  // alike in cells for which it says the same by relative references
};

// What the formula says in any place: its text in Excel's notation with references counted from the cell.
std::u16string formula_pattern(std::u16string_view excel_formula, std::int32_t column, std::int32_t row);

// Enters formulas into the cells of a range. Each cell keeps its look. One below the other, formulas of one pattern are
// filled down: entered one by one they would take a time that grows with the square of their number.
void enter_formulas(const Cells& cells, std::vector<FormulaForCell> formulas);
// One formula into all cells of a range, as it stands for the first of them.
void enter_everywhere(const Cells& cells, const std::u16string& text);

// Whether some cell holds a formula that cannot be read, which the office takes nevertheless.
bool has_unreadable_formula(const Cells& cells);

}  // namespace qor::calc
