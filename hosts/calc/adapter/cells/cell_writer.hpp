#pragma once

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// Enters values into cells as Excel does when Value or Formula is set: text as if it were typed, text that begins with
// an equals sign as a formula in Excel's notation, a date or money with a format of its own where the cell has none.
// One value goes into every cell, with relative references adjusted; an array goes in from the top left corner of each
// area, a single row or column of it is repeated, and cells beyond it get #N/A. Raises 1004 where Excel refuses, for
// a formula that cannot be read too; then the cell keeps what it held.
void write_values(const RangeAreas& areas, const Variant& value);

// One array formula over the first area.
void write_array_formula(const RangeAreas& areas, const std::u16string& formula);

void clear_contents(const RangeAreas& areas);
// Contents, looks and comments.
void clear_all(const RangeAreas& areas);

}  // namespace qor::calc
