#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// Gives the cells of many areas this format of numbers, in one call. Where they had one format before, the change is
// recorded by an undo action of our own: the office would copy each area for itself, and to find it would pass all
// that lies above it in its column, so that the time would grow with the square of the cells.
void set_scattered_format(const RangeAreas& areas, std::int32_t key);

}  // namespace qor::calc
