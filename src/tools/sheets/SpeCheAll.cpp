#include "tools/sheets/SpeCheAll.hpp"

#include "automation/member_names.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {

void SpeCheAll(const ctlTree& tree, bool IgnoreHeadersFooters) {
    for (const TreeNode* node : tree.checked_nodes(3)) {
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
