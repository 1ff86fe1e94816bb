#pragma once

#include <span>
#include <string>

#include "tree/ctlTree.hpp"

namespace qor {

// The reports on what is checked in the tree, each with these headings as its columns: on the cells of worksheets, on
// those that are dates, on workbooks and on worksheets. None raises.
void CellInfo(ctlTree& tree, std::span<const std::u16string> Fields);
void DtRev(ctlTree& tree, std::span<const std::u16string> Fields);
void WBSum(ctlTree& tree, std::span<const std::u16string> Fields);
void WkSum(ctlTree& tree, std::span<const std::u16string> Fields);

}  // namespace qor
