#pragma once

#include <string>
#include <string_view>

#include "automation/variant.hpp"

namespace qor {

// The number that a text shows: blanks around it, a sign and the currency's sign before or behind, parentheses for a
// negative one, separators of thousands anywhere behind the first digit, a decimal point, an exponent after E or D; or
// a literal such as "&HFF" or "&O17", which is 16 bits wide if it fits and no "&" follows, so that "&HFFFF" is -1.
// Separators, point and currency are the locale's. Raises 13 for any other text, 6 out of range.
double parse_number(std::u16string_view text);
bool shows_number(std::u16string_view text);        // parse_number does not raise
Currency parse_currency(std::u16string_view text);  // exact in the decimal digits, half to even

// The shortest text of a number in so many significant digits, with an exponent ("1E+15", "1E-05") outside of
// 0.0001 up to the number of digits; with the locale's decimal point.
std::u16string number_text(double value);
std::u16string number_text(float value);
std::u16string number_text(Currency value);

}  // namespace qor
