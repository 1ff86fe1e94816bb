#pragma once

#include "automation/variant.hpp"

namespace qor {

// What the commands for all open workbooks and the menu of the tree share. Add-ins are left alone by the first two.

// Each is closed; those with a file are saved without a question where the user has chosen so.
void CloseAllWorkbooks();
// A new one is saved under the name that the user gives, if any, the others where they have changed.
void SaveAllWorkbooks();
// The same for one workbook.
void close_workbook(const Variant& workbook, bool saves_files);
void save_workbook(const Variant& workbook);
// Whether the user has chosen that files are saved without a question when they are closed.
bool saves_before_close();
// Every worksheet, those of add-ins and hidden ones included.
void PrintAllWorksheets();

}  // namespace qor
