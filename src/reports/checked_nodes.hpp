#pragma once

#include <string>

#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"

namespace qor {

// Visits the checked worksheets in the tree's order with the names of workbook and worksheet. A workbook whose name
// cannot be told has an empty one.
template <class Visit>
void for_each_checked_worksheet(const ctlTree& tree, Visit visit) {
    for (const TreeNode* node : tree.checked_nodes(3)) {
        std::u16string workbook_name;
        attempt([&] { workbook_name = to_text(node->parent()->tag()); });
        visit(workbook_name, node->text());
    }
}

}  // namespace qor
