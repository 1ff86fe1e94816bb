#pragma once

#include <chrono>
#include <cstdint>

#include "automation/variant.hpp"

namespace qor {

// A date taken apart, to the nearest second.
struct CivilTime {
    std::chrono::year_month_day day;
    std::chrono::weekday weekday;
    std::chrono::hh_mm_ss<std::chrono::seconds> time;
};

inline constexpr double first_serial = -657434;  // 1 January 100
inline constexpr double last_serial = 2958465;   // 31 December 9999

bool is_in_calendar(Date date) noexcept;

// Raises 6 outside of 1 January 100 to 31 December 9999.
CivilTime to_civil(Date date);
// The time of day is below 24 hours. It moves a date before 30 December 1899 away from 0, as the serial rule has it.
Date to_date(std::chrono::year_month_day day, std::chrono::seconds time_of_day = {});

// Date and time of day, of a moment counted from midnight of 30 December 1899.
std::chrono::seconds to_seconds(const CivilTime& civil);
// The day by its serial number and the time of day as a fraction of a day, from 0 to below 1. Raises 5 outside of the
// calendar.
Date to_date(std::int64_t day, double fraction);

// "2004-03-15", and "2004-03-15T13:05:00" if the time is not midnight, whatever the country.
std::u16string to_iso(Date date);

}  // namespace qor
