#include "workbooks/recent_files.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"

namespace qor {

void ClearRecentFiles(const std::optional<bool>& always) {
    if (!always.value_or(false) && !is_on(option::chkT1DeleteRecentFiles)) return;
    const Variant shown = gExcel.get(names::DisplayRecentFiles);
    const Object files = gExcel.get(names::RecentFiles);
    const Variant most = files.get(names::Maximum);
    // The rest moves up. The host may change what is written back at the end.
    for (std::int32_t left = to_long(files.get(names::Count)); left > 0; --left)
        files.get(names::Item, 1).call(names::Delete);
    gExcel.put(names::DisplayRecentFiles, shown);
    files.put(names::Maximum, most);
}

}  // namespace qor
