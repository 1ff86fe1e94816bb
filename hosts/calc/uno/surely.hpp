#pragma once

#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {

// Runs calls that take back what must not last, such as a lock. One failure is not believed; after a second one the
// object is gone, and what was done to it with it.
template <class Calls>
void surely(const Calls& calls) {
    const auto fails = [&] { return attempt([&] { guarded(calls); }) != 0; };
    if (fails()) fails();
}

}  // namespace qor::calc
