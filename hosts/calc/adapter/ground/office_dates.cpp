#include "hosts/calc/adapter/ground/office_dates.hpp"

#include "runtime/calendar.hpp"

namespace qor::calc {

std::optional<Date> date_of(const css::util::DateTime& time) {
    const std::chrono::year_month_day day{std::chrono::year{time.Year}, std::chrono::month{time.Month},
                                          std::chrono::day{time.Day}};
    if (time.Year == 0 || !day.ok()) return {};
    return to_date(
        day, std::chrono::hours(time.Hours) + std::chrono::minutes(time.Minutes) + std::chrono::seconds(time.Seconds));
}

css::util::DateTime office_time(Date date) {
    const CivilTime civil = to_civil(date);
    css::util::DateTime time;
    time.Year = static_cast<sal_Int16>(static_cast<int>(civil.day.year()));
    time.Month = static_cast<sal_uInt16>(static_cast<unsigned>(civil.day.month()));
    time.Day = static_cast<sal_uInt16>(static_cast<unsigned>(civil.day.day()));
    time.Hours = static_cast<sal_uInt16>(civil.time.hours().count());
    time.Minutes = static_cast<sal_uInt16>(civil.time.minutes().count());
    time.Seconds = static_cast<sal_uInt16>(civil.time.seconds().count());
    return time;
}

}  // namespace qor::calc
