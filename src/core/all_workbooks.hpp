#pragma once

namespace qor {

// What the commands for all open workbooks and the menu of the tree share. Add-ins are left alone by the first two.

// Each is closed; those with a file are saved without a question where the user has chosen so.
void CloseAllWorkbooks();
// A new one is saved under the name that the user gives, if any, the others where they have changed.
void SaveAllWorkbooks();
// Every worksheet, those of add-ins and hidden ones included.
void PrintAllWorksheets();

}  // namespace qor
