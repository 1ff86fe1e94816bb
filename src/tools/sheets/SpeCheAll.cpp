#include "automation/member_names.hpp"
#include "tree/ctlTree.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {

void ctlTree::SpeCheAll(bool IgnoreHeadersFooters) {
    for (const TreeNode* node : checked_nodes(3)) {
        attempt([&] {
            const Object worksheet = worksheet_of(*node);
            if (IgnoreHeadersFooters) {
                worksheet.get(names::Cells).call(names::CheckSpelling);
            } else {
                worksheet.call(names::CheckSpelling);
            }
        });
    }
}

}  // namespace qor
