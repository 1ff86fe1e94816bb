#pragma once

#include <string>

#include "automation/variant.hpp"

namespace qor {

// Deletes every empty worksheet of the workbook but its last one. Raises 9 for a workbook that is not open.
void DeleteEmptyWorksheets(const std::u16string& WorkbookName);

// Deletes the worksheet if nothing stands in it and nothing is drawn on it, and it is not the only one of its workbook.
// Cells that hold only blanks are cleared first; in a sheet that stays, they stay cleared. What the host refuses is
// passed over. DisplayAlerts is up to the caller.
void delete_if_empty(const Object& worksheets, const Object& worksheet);

}  // namespace qor
