#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// What the user has selected in a window; none when it is no range of cells.
std::optional<RangeAreas> selected_areas(const Book& book, const Ref<css::frame::XController>& controller);
// The cell that the cursor is on.
RangeAreas active_cell(const Book& book, const Ref<css::frame::XController>& controller);
// Selects in the workbook's current window, where the sheet comes to the front. Raises 1004 for a hidden sheet.
void select(const RangeAreas& areas);
// Puts these sheets into the group of the current window, alone or beside those that are in it.
void select_sheets(const Book& book, std::vector<std::int32_t> indices, bool replace);
void activate_sheet(const Sheet& sheet);

}  // namespace qor::calc
