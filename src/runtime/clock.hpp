#pragma once

#include <chrono>
#include <functional>

#include "automation/variant.hpp"

namespace qor {

// Tells the local date and time. Tests put a clock of their own in its place.
std::function<Date()>& wall_clock();

// Tells a time that only goes on, for what is measured. Tests put a clock of their own in its place.
std::function<std::chrono::steady_clock::time_point()>& running_clock();

Date now();
Date today();

}  // namespace qor
