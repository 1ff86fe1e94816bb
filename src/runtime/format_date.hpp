#pragma once

#include <cstdint>
#include <string>

#include "automation/variant.hpp"
#include "runtime/calendar.hpp"
#include "runtime/format_pattern.hpp"

namespace qor {

// A pattern of dates begins here, so that no number or text is meant.
bool starts_date_field(Symbols pattern);

// The date by a pattern of dates. Raises 6 outside of the calendar, 5 for a week rule that there is none of.
std::u16string format_date(Date date, Symbols pattern, std::int32_t first_day_of_week, std::int32_t first_week_of_year);

// In the country's form: the date unless it is 30 December 1899, the time unless it is midnight, one of them at least.
std::u16string general_date(Date date);

}  // namespace qor
