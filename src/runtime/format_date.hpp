#pragma once

#include <string>
#include <string_view>

#include "automation/variant.hpp"

namespace qor {

// The date by a pattern of d dd ddd dddd, m mm mmm mmmm, yy yyyy, h hh, n nn and s ss in any case, with English names;
// whatever is none of these stands for itself. Raises 6 for a date outside of the calendar.
std::u16string format_date(Date date, std::u16string_view pattern);

// "2004-03-15", and "2004-03-15T13:05:00" if the time is not midnight.
std::u16string to_iso(Date date);

}  // namespace qor
