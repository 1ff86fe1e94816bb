#pragma once

#include <cstdint>
#include <string>

namespace qor {

// The text of a day of the month, 1 to 31, in the form asked for: 0 writes the units in words and the tens as a digit
// ("2First"), 1 the units as a number and the tens in words ("Twenty-1ST"), any other form both as a number ("21ST").
// The days 1 to 20 and 30 have no tens of their own: they are words in form 0 and a number in all others.
std::u16string word_day(std::int32_t day, std::int32_t form);

}  // namespace qor
