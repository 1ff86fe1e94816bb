#include "tree/tree_nodes.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"

namespace qor {

Object workbook_of(const TreeNode& window_node) {
    return gExcel.get(names::Workbooks, window_node.tag());
}

Object worksheet_of(const TreeNode& sheet_node) {
    return workbook_of(*sheet_node.parent()).get(names::Worksheets, sheet_node.text());
}

}  // namespace qor
