#pragma once

#include <optional>
#include <string_view>

#include "automation/variant.hpp"

namespace qor {

// The date, the time of day or both in either order that a text shows; nothing if it shows none.
// A date is two or three numbers between blanks or one of / - , (or the locale's separator), one of which may be the
// name of a month or its abbreviation; three are taken in the locale's order, or else in the first of the other orders
// that gives a date; two are a day and a month of this year, or else a month and a year. Years 0 to 29 are 2000 to
// 2029, 30 to 99 are 1930 to 1999. A time is two or three numbers between colons or points, or one before AM, PM, A or
// P.
std::optional<Date> parse_date(std::u16string_view text);

}  // namespace qor
