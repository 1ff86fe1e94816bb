#pragma once

#include <cstdint>
#include <optional>
#include <string>

// What the add-in does when something happens in the host. Each looks at the option that governs it and does nothing
// while that is off. gExcel is set by the caller. What the host raises is raised on but where it is said otherwise.
namespace qor {

// How a command ended. One that ended early leaves gExcel set, as one that failed does.
enum class Ending : std::uint8_t { complete, early };

// Arranges the windows in the user's style, after a workbook has been opened.
void QAutoUpdateWindowPositions();
void QOptionDeleteEmptyWorksheets(const std::optional<std::u16string>& sWorkbookName);
// Keeps the scroll areas of the worksheets in document properties of their names ("SAVE"), or sets them from there.
void QScrollableArea(const std::u16string& sWorkbookName, const std::u16string& sAction);
// Copies the workbook into the backup folder, before it is saved. It ends early where there is no such folder and where
// the workbook has no file yet.
Ending QAlwCreBacBefSav(const std::optional<std::u16string>& sWorkbookName);
// Makes the default folder for saving the current one. Raises nothing.
void QSetSaveFolder();

}  // namespace qor
