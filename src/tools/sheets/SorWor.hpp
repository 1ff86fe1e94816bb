#pragma once

#include "tree/ctlTree.hpp"

namespace qor {

// Brings the worksheets of each checked window's workbook into the order of their names. Raises nothing.
void SorWor(ctlTree& tree, bool Ascending);

}  // namespace qor
