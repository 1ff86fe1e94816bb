#include "runtime/calendar.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace qor {
namespace {

using namespace std::chrono;

constexpr sys_days day_zero{year{1899} / December / 30};
constexpr double seconds_per_day = 86400;

}  // namespace

bool is_in_calendar(Date date) noexcept {
    return std::trunc(date.serial) >= first_serial && std::trunc(date.serial) <= last_serial;
}

CivilTime to_civil(Date date) {
    if (!is_in_calendar(date)) throw Error(ErrorNumber::overflow);
    double day = std::trunc(date.serial);
    // The fraction is the time of day on both sides of 0.
    double second = std::round(std::abs(date.serial - day) * seconds_per_day);
    if (second == seconds_per_day) {
        second = 0;
        ++day;
        if (day > last_serial) throw Error(ErrorNumber::overflow);
    }
    const sys_days moment = day_zero + days{static_cast<int>(day)};
    return {moment, weekday{moment}, hh_mm_ss{seconds{static_cast<int>(second)}}};
}

Date to_date(year_month_day day, seconds time_of_day) {
    return to_date((sys_days{day} - day_zero).count(), static_cast<double>(time_of_day.count()) / seconds_per_day);
}

seconds to_seconds(const CivilTime& civil) {
    return (sys_days{civil.day} - day_zero) + civil.time.to_duration();
}

Date to_date(std::int64_t day, double fraction) {
    const auto serial = static_cast<double>(day);
    if (!(serial >= first_serial && serial <= last_serial)) throw Error(ErrorNumber::invalid_call);
    return {day < 0 ? serial - fraction : serial + fraction};
}

std::u16string to_iso(Date date) {
    const CivilTime civil = to_civil(date);
    std::u16string text;
    const auto add = [&](std::int64_t number, std::size_t least_count, char16_t separator) {
        const std::string digits = std::to_string(number);
        if (separator != 0) text += separator;
        text.append(least_count - std::min(least_count, digits.size()), u'0').append(digits.begin(), digits.end());
    };
    add(static_cast<int>(civil.day.year()), 4, 0);
    add(static_cast<unsigned>(civil.day.month()), 2, u'-');
    add(static_cast<unsigned>(civil.day.day()), 2, u'-');
    if (civil.time.to_duration().count() == 0) return text;
    add(civil.time.hours().count(), 2, u'T');
    add(civil.time.minutes().count(), 2, u':');
    add(civil.time.seconds().count(), 2, u':');
    return text;
}

}  // namespace qor
