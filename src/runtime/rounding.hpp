#pragma once

#include <cstdint>

namespace qor {

// The double nearest to the exact value of `value` rounded to so many decimal places, where only an exact tie goes to
// the even digit. Places beyond the precision of a double leave the value as it is, and so do infinities and what is
// no number. Raises 5 for negative places.
double round_half_even(double value, std::int32_t places);

}  // namespace qor
