#pragma once

#include <optional>
#include <string>

// What the add-in does when something happens in the host. Each looks at the option that governs it and does nothing
// while that is off. gExcel is set by the caller. What the host raises is raised on but where it is said otherwise.
namespace qor {

// Arranges the windows in the user's style, after a workbook has been opened.
void QAutoUpdateWindowPositions();
void QOptionDeleteEmptyWorksheets(const std::optional<std::u16string>& sWorkbookName);
// Keeps the scroll areas of the worksheets in document properties of their names ("SAVE"), or sets them from there.
void QScrollableArea(const std::u16string& sWorkbookName, const std::u16string& sAction);
// Copies the workbook into the backup folder, before it is saved. False when it ends early, since there is no such
// folder or the workbook has no file yet.
bool QAlwCreBacBefSav(const std::optional<std::u16string>& sWorkbookName);
// Makes the default folder for saving the current one. Raises nothing.
void QSetSaveFolder();

}  // namespace qor
