#include "runtime/clock.hpp"

#include <cmath>
#include <ctime>

#include "runtime/calendar.hpp"

namespace qor {
namespace {

std::tm local_time(std::time_t moment) {
    std::tm result{};
#ifdef _WIN32
    localtime_s(&result, &moment);
#else
    localtime_r(&moment, &result);
#endif
    return result;
}

Date system_time() {
    using namespace std::chrono;
    const std::tm local = local_time(system_clock::to_time_t(system_clock::now()));
    const year_month_day day{year{local.tm_year + 1900}, month{static_cast<unsigned>(local.tm_mon + 1)},
                             std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
    return to_date(day, hours{local.tm_hour} + minutes{local.tm_min} + seconds{local.tm_sec});
}

}  // namespace

std::function<Date()>& wall_clock() {
    static std::function<Date()> told = system_time;
    return told;
}

std::function<std::chrono::steady_clock::time_point()>& running_clock() {
    static std::function<std::chrono::steady_clock::time_point()> told = std::chrono::steady_clock::now;
    return told;
}

Date now() {
    return wall_clock()();
}

Date today() {
    return {std::trunc(now().serial)};
}

}  // namespace qor
