#pragma once

#include <cstdint>

#include "automation/variant.hpp"

namespace qor {

// The double nearest to the exact value of `value` rounded to so many decimal places, where only an exact tie goes to
// the even digit. Places beyond the precision of a double leave the value as it is, and so do infinities and what is
// no number. Raises 5 for negative places.
double round_half_even(double value, std::int32_t places);
Currency round_half_even(Currency value, std::int32_t places);  // exact; raises 6 if the result is out of range

// A value in its own kind: whole numbers stay as they are, a boolean becomes an Integer, Empty too, a Date keeps its
// kind, a text becomes a Double and Null is Null. Raises 5 for negative places and 13 for what is no number.
Variant round_half_even(const Variant& value, std::int32_t places);

}  // namespace qor
