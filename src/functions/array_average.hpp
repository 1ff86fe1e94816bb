#pragma once

#include <span>

#include "automation/variant.hpp"

namespace qor {

// The sum of the values, begun with the integer 0, divided by their count. A value that cannot be added leaves the sum
// as it was and still counts. Empty if the division fails. Raises nothing.
Variant ArrayAverage(std::span<const Variant> values);

}  // namespace qor
