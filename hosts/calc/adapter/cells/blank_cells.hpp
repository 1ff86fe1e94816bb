#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// To be called before many cells are written at once: the office's undo of that brings back what stood in them, but
// does not empty those that were blank. This adds to the open undo step what empties them.
void empty_blanks_on_undo(const Document& document, const Cells& cells);

}  // namespace qor::calc
