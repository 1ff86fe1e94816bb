#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// The places of the array formulas that lie in the cells or reach into them, each once.
std::vector<Rectangle> array_places(const Sheet& sheet, const Cells& cells);

}  // namespace qor::calc
