#pragma once

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// From now on the names of our functions are repaired in every document that is loaded.
void watch_loads(const Context& context);

}  // namespace qor::calc
