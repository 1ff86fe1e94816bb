#pragma once

#include <vector>

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

using CellPlaces = std::vector<css::table::CellRangeAddress>;

// The places in a range that hold formulas with a result of these kinds, as bits of css::sheet::FormulaResult, and
// those that hold content of these kinds, as bits of css::sheet::CellFlags. To be asked here only: where nothing lies
// in a range or to the right of it, the office's own answer holds cells to the left of it.
CellPlaces formula_places(const Cells& cells, sal_Int32 results);
CellPlaces content_places(const Cells& cells, sal_Int16 contents);

// Formulas of whatever result.
CellPlaces formula_places(const Cells& cells);
// Cells that hold nothing, and cells whose row and column can be seen.
CellPlaces empty_places(const Cells& cells);
CellPlaces visible_places(const Cells& cells);

}  // namespace qor::calc
