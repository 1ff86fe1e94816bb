#include <optional>

#include "automation/member_names.hpp"
#include "core/empty_worksheets.hpp"
#include "core/host_state.hpp"
#include "tree/ctlTree.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {

void ctlTree::DelEmpWor() {
    const std::int32_t total = CountCheckBoxes(3);
    std::int32_t done = 0;
    std::optional<SwitchedOff> display_alerts;
    attempt([&] { display_alerts.emplace(names::DisplayAlerts); });
    for (const TreeNode* node : checked_nodes(3)) {
        attempt([&] {
            const Object worksheets = workbook_of(*node->parent()).get(names::Worksheets);
            delete_if_empty(worksheets, worksheets.get(names::Item, node->text()));
        });
        Progress(++done, total);
    }
}

}  // namespace qor
