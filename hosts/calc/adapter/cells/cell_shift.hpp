#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// Inserts blank cells in the place of each area. Whole rows and columns make room of themselves; for other cells the
// direction is the one asked for, else down, or to the right where an area is higher than it is wide. Raises 1004 where
// a sheet's protection, an array formula, merged cells or the sheet's edge is in the way, and then changes no cell.
void insert_cells(const RangeAreas& areas, std::optional<std::int32_t> direction);
// Takes the cells out, by the same rules.
void delete_cells(const RangeAreas& areas, std::optional<std::int32_t> direction);

}  // namespace qor::calc
