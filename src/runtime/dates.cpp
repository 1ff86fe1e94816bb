#include "runtime/dates.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <limits>

#include "platform/text.hpp"
#include "runtime/calendar.hpp"
#include "runtime/conversion.hpp"
#include "runtime/locale.hpp"

namespace qor {
namespace {

using namespace std::chrono;

enum class Unit : std::uint8_t { month, day, second };
enum class Part : std::uint8_t { year, quarter, month, day_of_year, day, weekday, week, hour, minute, second };

struct Interval {
    std::u16string_view letters;
    Part part;
    Unit unit;  // that it is made of, when a date moves
    std::int64_t units;
};

constexpr std::array intervals{
    Interval{u"yyyy", Part::year, Unit::month, 12}, Interval{u"q", Part::quarter, Unit::month, 3},
    Interval{u"m", Part::month, Unit::month, 1},    Interval{u"y", Part::day_of_year, Unit::day, 1},
    Interval{u"d", Part::day, Unit::day, 1},        Interval{u"w", Part::weekday, Unit::day, 1},
    Interval{u"ww", Part::week, Unit::day, 7},      Interval{u"h", Part::hour, Unit::second, 3600},
    Interval{u"n", Part::minute, Unit::second, 60}, Interval{u"s", Part::second, Unit::second, 1},
};

const Interval& interval_of(std::u16string_view letters) {
    const auto* found =
        std::ranges::find_if(intervals, [&](const Interval& row) { return equal_ignoring_case(row.letters, letters); });
    if (found == intervals.end()) throw Error(ErrorNumber::invalid_call);
    return *found;
}

weekday first_weekday(std::int32_t first_day_of_week) {
    if (first_day_of_week < 0 || first_day_of_week > 7) throw Error(ErrorNumber::invalid_call);
    const std::int32_t day = first_day_of_week == 0 ? locale().first_day_of_week : first_day_of_week;
    return weekday{static_cast<unsigned>(day - 1)};
}

std::int32_t week_rule(std::int32_t first_week_of_year) {
    if (first_week_of_year < 0 || first_week_of_year > 3) throw Error(ErrorNumber::invalid_call);
    return first_week_of_year == 0 ? locale().first_week_of_year : first_week_of_year;
}

constexpr sys_days week_start(sys_days day, weekday first) {
    return day - (weekday{day} - first);
}

std::int32_t week_number(sys_days day, weekday first, std::int32_t rule) {
    const sys_days start = week_start(day, first);
    // The day of a week that decides which year the week belongs to, and the last January day that week 1 may hold.
    const auto [deciding_day, within_first_week] = [&]() -> std::pair<sys_days, unsigned> {
        switch (rule) {
            case 2:
                return {start + days{3}, 4};
            case 3:
                return {start, 7};
            default:
                return {day, 1};
        }
    }();
    const year its_year = year_month_day{deciding_day}.year();
    const sys_days first_start = week_start(sys_days{its_year / January / std::chrono::day{within_first_week}}, first);
    return static_cast<std::int32_t>((start - first_start).count() / 7 + 1);
}

std::int64_t month_count(year_month_day day) {
    return std::int64_t{static_cast<int>(day.year())} * 12 + static_cast<unsigned>(day.month()) - 1;
}

template <class Length>
std::int64_t count_of(const CivilTime& civil) {
    return floor<Length>(to_seconds(civil)).count();
}

year_month_day first_of_month(std::int64_t months) {
    constexpr std::int64_t first = std::int64_t{100} * 12;
    constexpr std::int64_t last = std::int64_t{9999} * 12 + 11;
    if (months < first || months > last) throw Error(ErrorNumber::invalid_call);
    return year{static_cast<int>(months / 12)} / month{static_cast<unsigned>(months % 12 + 1)} / day{1};
}

std::int32_t to_result(std::int64_t count) {
    constexpr std::numeric_limits<std::int32_t> limits;
    if (count < limits.min() || count > limits.max()) throw Error(ErrorNumber::overflow);
    return static_cast<std::int32_t>(count);
}

}  // namespace

Date date_serial(std::int32_t year, std::int32_t month, std::int32_t day) {
    for (const std::int32_t part : {year, month, day}) to_integer(part);
    const std::int32_t full_year = year < 0 || year > 99 ? year : year + (year < 30 ? 2000 : 1900);
    const std::int64_t months = std::int64_t{full_year} * 12 + month - 1;
    // Days can roll a month back into the calendar, though by no more than 90 years.
    constexpr std::int64_t beyond_reach = std::int64_t{12'000} * 12;
    if (months < 0 || months > beyond_reach) throw Error(ErrorNumber::invalid_call);
    const sys_days first_day{std::chrono::year{static_cast<int>(months / 12)} /
                             std::chrono::month{static_cast<unsigned>(months % 12 + 1)} / 1};
    return to_date(year_month_day{first_day + days{day - 1}});
}

Date date_add(std::u16string_view interval, double number, Date date) {
    const Interval& row = interval_of(interval);
    const std::int64_t count = row.units * to_long(number);
    const CivilTime civil = to_civil(date);
    if (row.unit == Unit::second) {
        const seconds moment = to_seconds(civil) + seconds{count};
        const days its_day = floor<days>(moment);
        return to_date(its_day.count(), duration<double, days::period>(moment - its_day).count());
    }
    const double day = std::trunc(date.serial);
    const double fraction = std::abs(date.serial - day);
    if (row.unit == Unit::day) return to_date(static_cast<std::int64_t>(day) + count, fraction);
    const year_month_day old_day = to_civil(Date{day}).day;
    const year_month_day first_day = first_of_month(month_count(old_day) + count);
    const std::chrono::day last_day = (first_day.year() / first_day.month() / last).day();
    const year_month_day new_day = first_day.year() / first_day.month() / std::min(old_day.day(), last_day);
    return to_date(static_cast<std::int64_t>(to_date(new_day).serial), fraction);
}

std::int32_t date_diff(std::u16string_view interval, Date from, Date to, std::int32_t first_day_of_week,
                       std::int32_t first_week_of_year) {
    const weekday first = first_weekday(first_day_of_week);
    week_rule(first_week_of_year);
    const CivilTime start = to_civil(from);
    const CivilTime end = to_civil(to);
    const auto difference = [&](auto count) { return to_result(count(end) - count(start)); };
    switch (interval_of(interval).part) {
        case Part::year:
            return difference([](const CivilTime& civil) { return std::int64_t{static_cast<int>(civil.day.year())}; });
        case Part::quarter:
            return difference([](const CivilTime& civil) { return month_count(civil.day) / 3; });
        case Part::month:
            return difference([](const CivilTime& civil) { return month_count(civil.day); });
        case Part::day_of_year:
        case Part::day:
            return difference(count_of<days>);
        case Part::weekday:
            return difference(count_of<days>) / 7;
        case Part::week:
            return difference([&](const CivilTime& civil) {
                return std::int64_t{floor<weeks>(week_start(sys_days{civil.day}, first).time_since_epoch()).count()};
            });
        case Part::hour:
            return difference(count_of<hours>);
        case Part::minute:
            return difference(count_of<minutes>);
        case Part::second:
            break;
    }
    return difference(count_of<seconds>);
}

std::int32_t date_part(std::u16string_view interval, Date date, std::int32_t first_day_of_week,
                       std::int32_t first_week_of_year) {
    const weekday first = first_weekday(first_day_of_week);
    const std::int32_t rule = week_rule(first_week_of_year);
    const CivilTime civil = to_civil(date);
    const sys_days day{civil.day};
    switch (interval_of(interval).part) {
        case Part::year:
            return static_cast<int>(civil.day.year());
        case Part::quarter:
            return static_cast<std::int32_t>((static_cast<unsigned>(civil.day.month()) + 2) / 3);
        case Part::month:
            return static_cast<std::int32_t>(static_cast<unsigned>(civil.day.month()));
        case Part::day_of_year:
            return static_cast<std::int32_t>((day - sys_days{civil.day.year() / January / 1}).count() + 1);
        case Part::day:
            return static_cast<std::int32_t>(static_cast<unsigned>(civil.day.day()));
        case Part::weekday:
            return static_cast<std::int32_t>((civil.weekday - first).count() + 1);
        case Part::week:
            return week_number(day, first, rule);
        case Part::hour:
            return static_cast<std::int32_t>(civil.time.hours().count());
        case Part::minute:
            return static_cast<std::int32_t>(civil.time.minutes().count());
        case Part::second:
            break;
    }
    return static_cast<std::int32_t>(civil.time.seconds().count());
}

std::u16string month_name(std::int32_t month, bool abbreviate) {
    if (month < 1 || month > 12) throw Error(ErrorNumber::invalid_call);
    const auto& names = abbreviate ? locale().month_abbreviations : locale().month_names;
    return names[static_cast<std::size_t>(month - 1)];
}

std::u16string weekday_name(std::int32_t weekday, bool abbreviate, std::int32_t first_day_of_week) {
    if (weekday < 1 || weekday > 7) throw Error(ErrorNumber::invalid_call);
    const auto& names = abbreviate ? locale().weekday_abbreviations : locale().weekday_names;
    return names[(first_weekday(first_day_of_week) + days{weekday - 1}).c_encoding()];
}

}  // namespace qor
