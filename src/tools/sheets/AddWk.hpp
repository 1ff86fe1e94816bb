#pragma once

#include "tree/ctlTree.hpp"

namespace qor {

// Inserts so many worksheets into the workbook of each checked window, before or behind all others. Below 1: none.
// Raises nothing.
void AddWk(ctlTree& tree, std::int32_t Number, bool AtBeginning);

}  // namespace qor
