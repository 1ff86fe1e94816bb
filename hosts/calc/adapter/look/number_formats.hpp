#pragma once

#include "hosts/calc/adapter/ground/number_kinds.hpp"

namespace qor::calc {

// The workbook's key for a format in Excel's notation, made if need be. Raises 1004 for a text that is no format.
std::int32_t number_format_key(const Book& book, std::u16string_view code);
// The format of that key in Excel's notation.
std::u16string number_format_code(const Book& book, std::int32_t key);

// One format for each cell, as an array of values goes into cells: a single row or column of it is repeated, and cells
// beyond it stay as they are. All formats or, where one is refused, none.
void write_number_formats(const RangeAreas& areas, const Array& codes);

// A run of cells whose numbers have to show as this kind.
struct KindRun {
    Rectangle cells;
    NumberKind kind;
};

// What has to be done so that numbers written into the area, row by row of these kinds, show as what they are: a date
// or money where the cell has no format yet, a Boolean always. A cell that shows Booleans goes back to no format when
// it gets something else. `before` is what number_kinds says of the area.
std::vector<KindRun> number_kind_changes(const Rectangle& area, const std::vector<KindOfCells>& before,
                                         const std::vector<NumberKind>& kinds);
void apply_number_kinds(const Sheet& sheet, const std::vector<KindRun>& changes);

}  // namespace qor::calc
