#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/variant.hpp"

namespace qor {

// The text of a value by a pattern: a named format in any case ("General Number", "Currency", "Fixed", "Standard",
// "Percent", "Scientific", "Yes/No", "True/False", "On/Off", "General Date", "Long Date", "Medium Date", "Short Date",
// "Long Time", "Medium Time", "Short Time") or one of the user's, which its first letter tells apart:
// - numbers: 0 # . , % E+ E- e+ e-, up to four sections between semicolons (above 0, below 0, 0, Null); a tie rounds
// away
//   from 0 in the 15 significant digits;
// - dates: c d dd ddd dddd ddddd dddddd w ww m mm mmm mmmm q y yy yyyy h hh n nn s ss ttttt AM/PM am/pm A/P a/p AMPM :
// /
//   where m and mm behind h or hh are minutes;
// - texts: @ & < > !, two sections (any text, empty text or Null).
// What stands in quotes or behind a backslash, and any other character, stands for itself. No pattern: as to_text, but
// nothing for Null. A text that is no number or date as the pattern has it is given as it is. The first day of the week
// and the first week of the year are those of date_part. Raises 6 for a date outside of the calendar, 13 for a value
// that has no text.
std::u16string format(const Variant& value, std::u16string_view pattern = {}, std::int32_t first_day_of_week = 1,
                      std::int32_t first_week_of_year = 1);

}  // namespace qor
