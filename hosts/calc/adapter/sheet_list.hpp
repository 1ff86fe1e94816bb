#pragma once

#include "hosts/calc/adapter/book.hpp"

namespace qor::calc {

// Each of these raises 1004 when the workbook or the office does not allow it.

// Inserts new sheets in front of the place (from 0) under unused names and brings the first one to the front, which
// it answers.
Sheet insert_sheets(const Book& book, std::int32_t place, std::int32_t count);
void rename_sheet(const Sheet& sheet, std::u16string_view name);
void delete_sheet(const Sheet& sheet);
// Raises when the sheet is the only one of its workbook that can be seen.
void require_other_visible_sheet(const Sheet& sheet);

}  // namespace qor::calc
