#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/variant.hpp"

// The date library. An interval is, in any case, "yyyy" year, "q" quarter, "m" month, "y" day of the year, "d" day,
// "w" weekday, "ww" week, "h" hour, "n" minute or "s" second. The first day of the week is 1 for Sunday to 7 for
// Saturday; the first week of the year is 1 (holds 1 January), 2 (has at least four days) or 3 (a full week); 0 is the
// locale's choice in both. All raise 5 for any other interval, day or rule, and 6 for a date outside of the calendar.
namespace qor {

// Months below 1 or above 12 and days outside of the month roll over; years 0 to 29 are 2000 to 2029, 30 to 99 are 1930
// to 1999. Raises 6 for a part that does not fit 16 bits and 5 for a date outside of the calendar.
Date date_serial(std::int32_t year, std::int32_t month, std::int32_t day);

// The number is rounded half to even. Years, quarters and months end on the last day of a shorter month. Raises 5 for a
// result outside of the calendar, 6 for a number that does not fit 32 bits.
Date date_add(std::u16string_view interval, double number, Date date);

// How many boundaries of the interval lie between the dates; below 0 if `to` is the earlier. "w" counts whole weeks,
// "ww" the first days of a week. Raises 6 if that does not fit 32 bits.
std::int32_t date_diff(std::u16string_view interval, Date from, Date to, std::int32_t first_day_of_week = 1,
                       std::int32_t first_week_of_year = 1);

// "w" is the place in the week, from 1. Days before the first week of their year belong to the last one of the year
// before, and by rule 2 those behind the last week to week 1.
std::int32_t date_part(std::u16string_view interval, Date date, std::int32_t first_day_of_week = 1,
                       std::int32_t first_week_of_year = 1);

std::u16string month_name(std::int32_t month, bool abbreviate = false);  // 1 to 12; raises 5 for any other
// Of the so-manieth day, 1 to 7, of a week with that first day; raises 5 for any other.
std::u16string weekday_name(std::int32_t weekday, bool abbreviate = false, std::int32_t first_day_of_week = 0);

}  // namespace qor
