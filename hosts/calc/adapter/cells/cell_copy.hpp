#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// Copies contents, looks and comments to the target, which may lie in another workbook: from its top left corner on,
// and several times where its height and width are multiples of the source's. Relative references move along.
void copy_cells(const RangeAreas& source, const RangeAreas& target);

}  // namespace qor::calc
