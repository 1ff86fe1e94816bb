#pragma once

#include <ostream>
#include <span>

namespace qor::bench {

// Runs the registered benchmarks and prints the median of each with its ratio to the first one of its group, and with
// its counters and its last label. A benchmark named "group/case" belongs to that group. The first argument is the
// program's name, the others are the library's. Returns false when an argument could not be read or a benchmark failed.
bool run_with_ratios(std::span<const char* const> arguments, std::ostream& report);

}  // namespace qor::bench
