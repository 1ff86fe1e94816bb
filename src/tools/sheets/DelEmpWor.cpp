#include "tools/sheets/DelEmpWor.hpp"

#include <optional>

#include "automation/member_names.hpp"
#include "ground/host_state.hpp"
#include "tree/tree_nodes.hpp"
#include "workbooks/empty_worksheets.hpp"

namespace qor {

void DelEmpWor(ctlTree& tree) {
    const std::int32_t total = tree.CountCheckBoxes(3);
    std::int32_t done = 0;
    std::optional<SwitchedOff> display_alerts;
    attempt([&] { display_alerts.emplace(names::DisplayAlerts); });
    for (const TreeNode* node : tree.checked_nodes(3)) {
        attempt([&] {
            const Object worksheets = workbook_of(*node->parent()).get(names::Worksheets);
            delete_if_empty(worksheets, worksheets.get(names::Item, node->text()));
        });
        tree.Progress(++done, total);
    }
}

}  // namespace qor
