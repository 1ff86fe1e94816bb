#pragma once

#include <string>

namespace qor {

// Goes to the bookmark that is chosen in the toolbar's list: selects its place where its workbook is open, opens the
// workbook otherwise. A sheet or a range that is no longer there is passed over. When the workbook's file is gone too,
// the user is told, unless it is to be `silent`. Raises what the host refuses.
void jump_to_bookmark(const std::u16string& data_file, bool silent);

}  // namespace qor
