#pragma once

#include <string>

#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"

namespace qor {

// Visits the checked worksheets in the tree's order with the names of workbook and worksheet. A workbook whose name
// cannot be told has an empty one.
template <class Visit>
void for_each_checked_worksheet(const ctlTree& tree, Visit visit) {
    for (std::size_t index = 1; index <= tree.treQOR.count(); ++index) {
        const TreeNode& node = tree.treQOR.node(index);
        if (node.level() != 3 || node.image() != ctlTree::checked) continue;
        std::u16string workbook_name;
        attempt([&] { workbook_name = to_text(node.parent()->tag()); });
        visit(workbook_name, node.text());
    }
}

}  // namespace qor
