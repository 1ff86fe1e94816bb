#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// The sheet in that place, from 0. Raises 9 when there is none.
Sheet sheet_at(const Book& book, std::int32_t place);

// Each of these raises 1004 when the workbook or the office does not allow it.

// To be called before sheets come, go, move or are renamed, shown or hidden.
void before_structure_change(const Book& book);

// Inserts new sheets in front of the place (from 0) under unused names and brings the first one to the front, which
// it answers.
Sheet insert_sheets(const Book& book, std::int32_t place, std::int32_t count);
void rename_sheet(const Sheet& sheet, std::u16string_view name);
void delete_sheet(const Sheet& sheet);
// Raises when the sheet is the only one of its workbook that can be seen.
void require_other_visible_sheet(const Sheet& sheet);

}  // namespace qor::calc
