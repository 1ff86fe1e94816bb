#pragma once

namespace qor::bench {

// Runs the registered benchmarks, several times each, and prints the median of each with its ratio to the first one
// and with its counters. Returns false when the arguments could not be read or a benchmark failed.
bool run_with_ratios(int argc, char** argv);

}  // namespace qor::bench
