#pragma once

#include "tree/ctlTree.hpp"

namespace qor {

// Runs the host's spelling check over each checked worksheet, or over its cells only. Raises nothing.
void SpeCheAll(const ctlTree& tree, bool IgnoreHeadersFooters);

}  // namespace qor
