#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// The smallest rectangle that holds everything on a sheet; the first cell of an empty one.
Rectangle used_area(const Sheet& sheet);

}  // namespace qor::calc
