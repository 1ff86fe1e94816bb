#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace qor {

enum class DateOrder : std::uint8_t { month_day_year, day_month_year, year_month_day };

// What a user's country shows in numbers, money and dates. Patterns are those of `format`.
struct Locale {
    std::array<std::u16string, 12> month_names;
    std::array<std::u16string, 12> month_abbreviations;
    std::array<std::u16string, 7> weekday_names;  // Sunday first
    std::array<std::u16string, 7> weekday_abbreviations;
    std::u16string morning;  // AM
    std::u16string afternoon;
    DateOrder date_order;
    char16_t date_separator;
    char16_t time_separator;
    std::u16string short_date;
    std::u16string long_date;
    std::u16string long_time;
    std::int32_t first_day_of_week;   // 1 is Sunday
    std::int32_t first_week_of_year;  // 1 holds 1 January, 2 has four days at least, 3 is full
    char16_t decimal_point;
    char16_t thousands_separator;
    std::u16string currency_sign;
    std::u16string currency_pattern;
};

const Locale& english_locale();  // United States

// The process's: the system's, English (United States) in what the system does not say, unless one was set.
const Locale& locale();
// Not to be called while another thread converts values.
void set_locale(Locale chosen);

}  // namespace qor
