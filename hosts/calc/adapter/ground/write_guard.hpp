#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// The one gate that every change passes through. Each raises 1004 where Excel refuses the change though the office
// would make it, and puts the change into the undo step that is open.

// A change of the workbook's sheets or of what lies on them beside cells.
void before_change(const Book& book);
// A change of what cells hold: not in a locked cell of a protected sheet, and not in part of an array formula.
void before_writing(const RangeAreas& areas);
// A change of how cells look: not on a protected sheet.
void before_formatting(const RangeAreas& areas);

}  // namespace qor::calc
