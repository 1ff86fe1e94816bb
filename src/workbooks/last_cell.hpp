#pragma once

namespace qor {

// Deletes the rows and columns behind the last content of each worksheet of the active workbook, where the user has
// chosen so. Raises nothing.
void QResLasCelEacWor();

}  // namespace qor
