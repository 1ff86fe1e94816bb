#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// In front of which sheet (from 0, the number of sheets for the end) of which workbook.
struct SheetPlace {
    Book book;
    std::int32_t index;
};

// Each brings the sheet to the front in its new place; none stands for a new workbook of its own. A copy is named as
// "Sheet1 (2)", and a sheet that comes into another workbook keeps its name if it can. Raises 1004 where a workbook
// does not allow it or would be left without a visible sheet.
void copy_sheet(const Sheet& sheet, const std::optional<SheetPlace>& place);
void move_sheet(const Sheet& sheet, const std::optional<SheetPlace>& place);

}  // namespace qor::calc
