#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qor {

// The words of 0 to 19 and, from place 20 on, of the tens from twenty to ninety.
using NumberWords = std::span<const std::u16string_view>;
NumberWords number_words() noexcept;

// The words of a number up to 999, each with a blank behind it: "One Hundred and Thirty Four ". The and comes even if
// nothing follows; 0 has no words. Raises 9 where the table has no such word.
std::u16string hundreds_tens_units(NumberWords words, std::int16_t value, bool use_and);

// The words of a number that is given as a text, of 18 whole digits at most, or the text of an error. The mode, in any
// case, is "and" (an and before the last tens), "check" (hundredths as 50/100) or "dollar" (Dollars and Cents).
std::u16string number_to_words(std::u16string_view number, std::u16string_view mode);

}  // namespace qor
