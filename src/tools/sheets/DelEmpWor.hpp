#pragma once

#include "tree/ctlTree.hpp"

namespace qor {

// Deletes the checked worksheets that are empty. Raises nothing.
void DelEmpWor(ctlTree& tree);

}  // namespace qor
