#pragma once

#include "ui/tree_node.hpp"

namespace qor {

// What a node of ctlTree stands for in gExcel, as it is now. Raise what the host raises: 9 when it is gone.

// Of a window's node.
Object workbook_of(const TreeNode& window_node);
Object worksheet_of(const TreeNode& sheet_node);

}  // namespace qor
