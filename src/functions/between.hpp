#pragma once

#include "automation/variant.hpp"

namespace qor {

// The value lies above the low one and below the high one, both of them excluded, in the order that `compare` has.
// False if one of the comparisons is with Null. Raises as `compare` does.
bool between(const Variant& value, const Variant& low, const Variant& high);

}  // namespace qor
