#include "runtime/dates.hpp"

#include <chrono>

#include "functions/between.hpp"
#include "functions/families.hpp"
#include "functions/word_day.hpp"
#include "runtime/calendar.hpp"

// Dates moved, counted, taken apart and spelled. A weekday code is 1 for Sunday to 7 for Saturday; any other asks for
// no weekday. The system's choice stands in for a first day of the week or a first week of the year that is left out.
namespace qor {
namespace {

constexpr std::int32_t days_in_week = 7;

// A date of the examples.
Date on(int year, unsigned month, unsigned day) {
    return to_date(std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day});
}

bool is_weekday_code(std::int32_t code) {
    return between(code, 0, 8);
}

std::int32_t weekday_of(Date date, std::int32_t first_day_of_week = 1) {
    return date_part(u"w", date, first_day_of_week);
}

// A day of the month that lies so many months behind the date's; day 0 is the last of the month before.
Date day_of_month(Date date, double months_on, std::int32_t day) {
    return date_serial(date_part(u"yyyy", date), to_long(date_part(u"m", date) + months_on), day);
}

Date end_of_month(Date date, std::int32_t months_on) {
    return day_of_month(date, months_on + 1.0, 0);
}

Date start_of_month(Date date, std::int32_t months_on) {
    return day_of_month(date, months_on, 1);
}

// How many days a weekday, by its code, lies behind another.
std::int32_t days_between(std::int32_t from, std::int32_t to) {
    return (to - from + days_in_week) % days_in_week;
}

std::int32_t days_in_month(Date date) {
    return date_part(u"d", end_of_month(date, 0));
}

std::int32_t weekdays_in_month(Date date, std::int32_t code) {
    const std::int32_t before_first = days_between(weekday_of(start_of_month(date, 0)), code);
    return (days_in_month(date) - before_first - 1) / days_in_week + 1;
}

Date last_in_month(Date date, std::int32_t code, std::int32_t months_on) {
    const Date last = end_of_month(date, months_on);
    return is_weekday_code(code) ? date_add(u"d", -days_between(code, weekday_of(last)), last) : last;
}

Date first_in_month(Date date, std::int32_t code, std::int32_t months_on) {
    const Date first = start_of_month(date, months_on);
    return is_weekday_code(code) ? date_add(u"d", days_between(weekday_of(first), code), first) : first;
}

Date end_of_week(Date date, std::int32_t first_day_of_week, double weeks_on) {
    const std::int32_t weekday = weekday_of(date, first_day_of_week);
    return date_add(u"d", weeks_on * days_in_week + (days_in_week - weekday), date);
}

// Two moves: a first day of the calendar has no day before it to come from.
Date start_of_week(Date date, std::int32_t first_day_of_week, double weeks_on) {
    const std::int32_t weekday = weekday_of(date, first_day_of_week);
    return date_add(u"d", 1, date_add(u"d", weeks_on * days_in_week - weekday, date));
}

}  // namespace

std::vector<FunctionDeclaration> date_functions() {
    return {
        {.name = u"EDATEADD",
         .help_id = 110005,
         .description = u"Returns an adjusted date.",
         .parameters = {u"sInterval", u"dNumber", u"vDt"},
         .formula = [](const std::u16string& sInterval, double dNumber, const Variant& vDt) -> Variant {
             return date_add(sInterval, dNumber, to_date(vDt));
         },
         .examples = {{{u"m", 1, on(2003, 1, 31)}, on(2003, 2, 28)}, {{u"ww", -2, u"3/15/2004"}, on(2004, 3, 1)}}},
        {.name = u"EDATEDIFF",
         .help_id = 110010,
         .description = u"Returns a number specifying the number of time intervals between two specified.",
         .parameters = {u"sInterval", u"vDtFrm", u"vDtTo", {u"lFirstDayOfWeek", 1}, {u"lFirstWeekOfYear", 1}},
         .formula =
             [](const std::u16string& sInterval, const Variant& vDtFrm, const Variant& vDtTo,
                std::int32_t lFirstDayOfWeek, std::int32_t lFirstWeekOfYear) {
                 return date_diff(sInterval, to_date(vDtFrm), to_date(vDtTo), lFirstDayOfWeek, lFirstWeekOfYear);
             },
         .examples = {{{u"d", on(2004, 2, 15), on(2004, 3, 15)}, 29},
                      {{u"d", on(2004, 3, 15), on(2004, 2, 15)}, -29},
                      {{u"yyyy", on(2003, 12, 31), on(2004, 1, 1)}, 1}}},
        {.name = u"EDATEPART",
         .help_id = 110015,
         .description = u"Returns a number specifying the part of any given date.",
         .parameters = {u"sInterval", u"vDt", {u"lFirstDayOfWeek", Missing{}}, {u"lFirstWeekOfYear", Missing{}}},
         .formula =
             [](const std::u16string& sInterval, const Variant& vDt, std::int32_t lFirstDayOfWeek,
                std::int32_t lFirstWeekOfYear) {
                 return date_part(sInterval, to_date(vDt), lFirstDayOfWeek, lFirstWeekOfYear);
             },
         .examples = {{{u"q", on(2004, 5, 15)}, 2}, {{u"ww", on(2004, 1, 4), 2, 1}, 1}}},
        {.name = u"EDAY",
         .help_id = 110020,
         .description = u"Returns a number specifying a whole number that represents the day of the month.",
         .parameters = {u"vDt"},
         .formula = [](const Variant& vDt) { return date_part(u"d", to_date(vDt)); },
         .examples = {{{on(2004, 2, 15)}, 15}}},
        {.name = u"EDAYSINMONTH",
         .help_id = 110025,
         .description = u"Returns a number specifying the number of days in a month.",
         .parameters = {u"vDt", {u"lNDay", Missing{}}},
         .formula =
             [](const Variant& vDt, std::int32_t lNDay) {
                 const Date date = to_date(vDt);
                 return is_weekday_code(lNDay) ? weekdays_in_month(date, lNDay) : days_in_month(date);
             },
         .examples = {{{on(2004, 2, 15)}, 29}, {{on(2004, 2, 15), 1}, 5}, {{on(2004, 2, 15), 2}, 4}}},
        {.name = u"EEOMONTH",
         .help_id = 110030,
         .description = u"Returns last date of a specific month.",
         .parameters = {u"vDt", {u"lLastDayOfMonth", Missing{}}, {u"lNPrd", Missing{}}},
         .formula = [](const Variant& vDt, std::int32_t lLastDayOfMonth, std::int32_t lNPrd) -> Variant {
             return last_in_month(to_date(vDt), lLastDayOfMonth, lNPrd);
         },
         .examples = {{{on(2003, 1, 31), 0, 1}, on(2003, 2, 28)},
                      {{on(2003, 1, 31), 6, 1}, on(2003, 2, 28)},
                      {{on(2003, 1, 31), 5, 1}, on(2003, 2, 27)}}},
        {.name = u"EEOWEEK",
         .help_id = 110035,
         .description = u"Returns the last date of a specific week.",
         .parameters = {u"vDt", {u"lFirstDayOfWeek", Missing{}}, {u"lNPrd", Missing{}}},
         .formula = [](const Variant& vDt, std::int32_t lFirstDayOfWeek, std::int32_t lNPrd) -> Variant {
             return end_of_week(to_date(vDt), lFirstDayOfWeek, lNPrd);
         },
         .examples = {{{on(2004, 3, 15), 1}, on(2004, 3, 20)}, {{on(2004, 3, 15), 2, 1}, on(2004, 3, 28)}}},
        {.name = u"EFOMONTH",
         .help_id = 110040,
         .description = u"Returns the first date of a specific month.",
         .parameters = {u"vDt", {u"lFirstDayOfMonth", Missing{}}, {u"lNPrd", Missing{}}},
         .formula = [](const Variant& vDt, std::int32_t lFirstDayOfMonth, std::int32_t lNPrd) -> Variant {
             return first_in_month(to_date(vDt), lFirstDayOfMonth, lNPrd);
         },
         .examples = {{{on(2003, 12, 15), 0, 1}, on(2004, 1, 1)}, {{on(2003, 12, 15), 2, 1}, on(2004, 1, 5)}}},
        {.name = u"EFOWEEK",
         .help_id = 110045,
         .description = u"Returns the first date of a given week.",
         .parameters = {u"vDt", {u"lFirstDayOfWeek", Missing{}}, {u"lNPrd", Missing{}}},
         .formula = [](const Variant& vDt, std::int32_t lFirstDayOfWeek, std::int32_t lNPrd) -> Variant {
             return start_of_week(to_date(vDt), lFirstDayOfWeek, lNPrd);
         },
         .examples = {{{on(2004, 3, 15), 1}, on(2004, 3, 14)}, {{on(2004, 3, 15), 3, -1}, on(2004, 3, 2)}}},
        {.name = u"EMONTH",
         .help_id = 110050,
         .description = u"Returns a number specifying the month (i.e., 1-12).",
         .parameters = {u"vDt"},
         .formula = [](const Variant& vDt) { return date_part(u"m", to_date(vDt)); },
         .examples = {{{on(2004, 2, 15)}, 2}}},
        {.name = u"EMONTHNAME",
         .help_id = 110055,
         .description = u"Returns a string. specifying the name of a month.",
         .parameters = {u"vDt", {u"bAbbreviate", false}},
         .formula = [](const Variant& vDt,
                       bool bAbbreviate) { return month_name(date_part(u"m", to_date(vDt)), bAbbreviate); },
         .examples = {{{on(2004, 2, 15)}, u"February"}, {{on(2004, 2, 15), true}, u"Feb"}}},
        {.name = u"EWEEKDAY",
         .help_id = 110060,
         .description = u"Returns a number specifying the number that the date represents in a week.",
         .parameters = {u"vDt", {u"lFirstDayOfWeek", Missing{}}},
         .formula = [](const Variant& vDt,
                       std::int32_t lFirstDayOfWeek) { return weekday_of(to_date(vDt), lFirstDayOfWeek); },
         .examples = {{{on(2004, 3, 15), 1}, 2}, {{on(2004, 3, 15), 3}, 7}}},
        {.name = u"EWEEKDAYNAME",
         .help_id = 110065,
         .description = u"Returns a string specifying the weekday name.",
         .parameters = {u"lWeekDay", {u"bAbbreviate", Missing{}}, {u"lFirstDayOfWeek", Missing{}}},
         .formula = [](std::int32_t lWeekDay, bool bAbbreviate,
                       std::int32_t lFirstDayOfWeek) { return weekday_name(lWeekDay, bAbbreviate, lFirstDayOfWeek); },
         .examples = {{{3, false, 1}, u"Tuesday"}, {{3, true, 2}, u"Wed"}}},
        {.name = u"EWORDDAY",
         .help_id = 110070,
         .description = u"Returns a string specifying the word day text corresponding to a date.",
         .parameters = {u"vDt", {u"lNumText", 0}},
         .formula = [](const Variant& vDt,
                       std::int32_t lNumText) { return word_day(date_part(u"d", to_date(vDt)), lNumText); },
         .examples = {{{on(2004, 3, 3)}, u"Third"},
                      {{on(2004, 3, 21)}, u"2First"},
                      {{on(2004, 3, 21), 1}, u"Twenty-1ST"},
                      {{on(2004, 3, 21), 2}, u"21ST"}}},
        {.name = u"EYEAR",
         .help_id = 110075,
         .description = u"Returns the year corresponding to a date.",
         .parameters = {u"vDt"},
         .formula = [](const Variant& vDt) -> Variant { return to_integer(date_part(u"yyyy", to_date(vDt))); },
         .examples = {{{on(2004, 2, 15)}, std::int16_t{2004}}}},
    };
}

}  // namespace qor
