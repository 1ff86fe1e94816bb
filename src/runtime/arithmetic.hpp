#pragma once

#include "automation/variant.hpp"

namespace qor {

// The sum of two host values in the wider of their kinds; a sum that does not fit its kind takes the next wider. Two
// texts are joined, a text beside a number counts as that number, Null makes Null. Raises 13 for what is no number, 6
// if no kind can hold the sum.
Variant add(const Variant& left, const Variant& right);

// The quotient as a double; Null makes Null. Raises 11 for a divisor of 0, 6 for 0 / 0 and where no double can hold it.
Variant divide(const Variant& left, const Variant& right);

}  // namespace qor
