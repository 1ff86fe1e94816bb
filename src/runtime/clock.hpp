#pragma once

#include <functional>

#include "automation/variant.hpp"

namespace qor {

// Tells the local date and time. Tests put a clock of their own in its place.
std::function<Date()>& wall_clock();

Date now();
Date today();

}  // namespace qor
