#include "runtime/dates.hpp"

#include <doctest/doctest.h>

#include <chrono>
#include <cmath>
#include <vector>

#include "runtime/calendar.hpp"
#include "runtime/locale.hpp"
#include "tests/runtime/country.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace std::chrono_literals;
using test::Country;
using test::raised;

namespace {

Date day(int its_year, unsigned its_month, unsigned its_day, std::chrono::seconds time = {}) {
    return to_date(std::chrono::year{its_year} / std::chrono::month{its_month} / std::chrono::day{its_day}, time);
}

constexpr const char16_t* all_intervals[] = {u"yyyy", u"q", u"m", u"y", u"d", u"w", u"ww", u"h", u"n", u"s"};

// As a calendar on the wall does it: by counting on from the first days of the year.
std::int32_t week_by_counting(Date date, std::int32_t first_day, std::int32_t rule) {
    const std::int32_t its_year = date_part(u"yyyy", date);
    const auto is_first_day = [&](Date one) { return date_part(u"w", one, first_day) == 1; };
    const auto first_week_of = [&](std::int32_t one_year) {
        Date start = date_serial(one_year, 1, 1);
        while (!is_first_day(start)) start.serial -= 1;
        const double days_in_year = start.serial + 7 - date_serial(one_year, 1, 1).serial;
        if ((rule == 2 && days_in_year < 4) || (rule == 3 && days_in_year < 7)) start.serial += 7;
        return start.serial;
    };
    double start = first_week_of(its_year);
    if (rule == 2 && date.serial >= first_week_of(its_year + 1)) return 1;
    if (date.serial < start) start = first_week_of(its_year - 1);
    return static_cast<std::int32_t>((date.serial - start) / 7) + 1;
}

}  // namespace

TEST_CASE("a date is made of its year, month and day") {
    CHECK(date_serial(2004, 3, 15).serial == 38061);
    CHECK(date_serial(2004, 2, 30).serial == 38047);
    CHECK(date_serial(2004, 14, 1).serial == 38384);
    CHECK(date_serial(2004, 3, 0).serial == 38046);
    CHECK(date_serial(2004, 0, 1).serial == 37956);
    CHECK(date_serial(2004, -11, 1).serial == 37622);
    CHECK(date_serial(2003, 15, 0).serial == 38046);
    CHECK(date_serial(0, 1, 1).serial == 36526);
    CHECK(date_serial(29, 1, 1).serial == 47119);
    CHECK(date_serial(30, 1, 1).serial == 10959);
    CHECK(date_serial(99, 12, 31).serial == 36525);
    CHECK(date_serial(100, 1, 1).serial == -657434);
    CHECK(date_serial(9999, 12, 31).serial == 2958465);
    CHECK(date_serial(10000, 1, 0).serial == 2958465);
    CHECK(date_serial(1899, 12, 29).serial == -1);
    CHECK(raised([] { return date_serial(100, 1, 0); }) == 5);
    CHECK(raised([] { return date_serial(10000, 1, 1); }) == 5);
    CHECK(raised([] { return date_serial(-1, 1, 1); }) == 5);
    CHECK(raised([] { return date_serial(32767, 32767, 32767); }) == 5);
    CHECK(raised([] { return date_serial(2004, 32768, 1); }) == 6);
    CHECK(raised([] { return date_serial(2004, 1, -32769); }) == 6);
}

TEST_CASE("a date moves by intervals") {
    struct Row {
        std::u16string_view interval;
        double number;
        Date from;
        Date to;
    };
    for (const Row& row : std::vector<Row>{
             {u"yyyy", 1, day(2004, 2, 29), day(2005, 2, 28)},
             {u"YYYY", -4, day(2004, 2, 29), day(2000, 2, 29)},
             {u"q", 1, day(2003, 11, 30), day(2004, 2, 29)},
             {u"m", 1, day(2003, 1, 31), day(2003, 2, 28)},
             {u"m", -1, day(2004, 3, 31, 1min), day(2004, 2, 29, 1min)},
             {u"m", 12, day(2004, 12, 31), day(2005, 12, 31)},
             {u"d", 1.5, day(2004, 2, 28), day(2004, 3, 1)},
             {u"d", 0.5, day(2004, 2, 28), day(2004, 2, 28)},
             {u"y", 1, day(2004, 2, 28), day(2004, 2, 29)},
             {u"w", -1, day(2004, 3, 1), day(2004, 2, 29)},
             {u"ww", 2, day(2004, 2, 22), day(2004, 3, 7)},
             {u"h", 25, day(2004, 2, 28, 23h), day(2004, 3, 1)},
             {u"n", -1, day(2004, 3, 1), day(2004, 2, 29, 23h + 59min)},
             {u"s", 86400, day(1899, 12, 28, 6h), day(1899, 12, 29, 6h)},
             {u"d", 2, day(1899, 12, 29, 6h), day(1899, 12, 31, 6h)},
             {u"h", 6, day(1899, 12, 29, 21h), day(1899, 12, 30, 3h)},
             {u"s", -1, day(1899, 12, 30), day(1899, 12, 29, 23h + 59min + 59s)},
         }) {
        CHECK(date_add(row.interval, row.number, row.from).serial == row.to.serial);
    }
    CHECK(date_add(u"d", 1, Date{-1.25}).serial == 0.25);
    CHECK(date_add(u"m", 1, Date{38061.123456}).serial == doctest::Approx(38092.123456).epsilon(1e-12));
    CHECK(raised([] { return date_add(u"x", 1, Date{1}); }) == 5);
    CHECK(raised([] { return date_add(u"", 1, Date{1}); }) == 5);
    CHECK(raised([] { return date_add(u"d", 1, Date{2958465}); }) == 5);
    CHECK(raised([] { return date_add(u"m", -1, Date{-657434}); }) == 5);
    CHECK(raised([] { return date_add(u"yyyy", 2147483647, Date{1}); }) == 5);
    CHECK(raised([] { return date_add(u"s", -2147483648.0, Date{1}).serial; }) == 0);
    CHECK(raised([] { return date_add(u"d", 2147483648.0, Date{1}); }) == 6);
    CHECK(raised([] { return date_add(u"d", 1, Date{2958466}); }) == 6);
}

TEST_CASE("the difference counts the boundaries between two dates") {
    struct Row {
        std::u16string_view interval;
        Date from;
        Date to;
        std::int32_t count;
    };
    for (const Row& row : std::vector<Row>{
             {u"yyyy", day(2003, 12, 31), day(2004, 1, 1), 1},
             {u"yyyy", day(2004, 1, 1), day(2004, 12, 31), 0},
             {u"q", day(2003, 12, 31), day(2004, 4, 1), 2},
             {u"m", day(2004, 1, 31), day(2004, 2, 1), 1},
             {u"m", day(2004, 2, 1), day(2003, 1, 31), -13},
             {u"d", day(2004, 2, 28, 23h), day(2004, 3, 1), 2},
             {u"y", day(2004, 3, 1), day(2004, 2, 28, 23h), -2},
             {u"w", day(2004, 3, 1), day(2004, 3, 14), 1},
             {u"w", day(2004, 3, 1), day(2004, 3, 15), 2},
             {u"w", day(2004, 3, 14), day(2004, 3, 1), -1},
             {u"ww", day(2004, 3, 6), day(2004, 3, 7), 1},  // Saturday to Sunday
             {u"ww", day(2004, 3, 7), day(2004, 3, 13), 0},
             {u"ww", day(2004, 3, 7), day(2004, 3, 6), -1},
             {u"h", day(2004, 3, 1, 1h + 59min), day(2004, 3, 1, 2h), 1},
             {u"h", day(2004, 3, 1, 2h), day(2004, 3, 1, 2h + 59min), 0},
             {u"n", day(2004, 3, 1), day(2004, 3, 2), 1440},
             {u"s", day(2004, 3, 2), day(2004, 3, 1), -86400},
             {u"h", day(1899, 12, 29, 23h), day(1899, 12, 30, 1h), 2},
             {u"d", day(100, 1, 1), day(9999, 12, 31), 3615899},
         }) {
        CHECK(date_diff(row.interval, row.from, row.to) == row.count);
    }
    CHECK(date_diff(u"ww", day(2004, 3, 6), day(2004, 3, 7), 2) == 0);
    CHECK(date_diff(u"ww", day(2004, 3, 7), day(2004, 3, 8), 2) == 1);
    CHECK(date_diff(u"ww", day(1899, 12, 23), day(1899, 12, 31)) == 2);
    CHECK(raised([] { return date_diff(u"s", Date{0}, Date{30000}); }) == 6);
    CHECK(raised([] { return date_diff(u"mm", Date{0}, Date{1}); }) == 5);
    CHECK(raised([] { return date_diff(u"d", Date{0}, Date{1}, 8); }) == 5);
    CHECK(raised([] { return date_diff(u"d", Date{0}, Date{1}, 1, 4); }) == 5);
    CHECK(raised([] { return date_diff(u"d", Date{0}, Date{1}, -1); }) == 5);
}

TEST_CASE("the parts of a date") {
    const Date date = day(2004, 11, 7, 13h + 5min + 9s);  // a Sunday
    CHECK(date_part(u"yyyy", date) == 2004);
    CHECK(date_part(u"q", date) == 4);
    CHECK(date_part(u"m", date) == 11);
    CHECK(date_part(u"y", date) == 312);
    CHECK(date_part(u"d", date) == 7);
    CHECK(date_part(u"w", date) == 1);
    CHECK(date_part(u"w", date, 2) == 7);
    CHECK(date_part(u"w", date, 7) == 2);
    CHECK(date_part(u"ww", date) == 46);
    CHECK(date_part(u"h", date) == 13);
    CHECK(date_part(u"n", date) == 5);
    CHECK(date_part(u"s", date) == 9);
    CHECK(date_part(u"h", Date{-1.25}) == 6);
    CHECK(raised([&] { return date_part(u"z", date); }) == 5);
    CHECK(raised([&] { return date_part(u"d", date, 9); }) == 5);
}

TEST_CASE("the first week of the year by its three rules") {
    // 1 January 2005 is a Saturday, 1 January 2004 a Thursday.
    CHECK(date_part(u"ww", day(2005, 1, 1), 1, 1) == 1);
    CHECK(date_part(u"ww", day(2005, 1, 2), 1, 1) == 2);
    CHECK(date_part(u"ww", day(2004, 12, 31), 1, 1) == 53);
    CHECK(date_part(u"ww", day(2005, 1, 1), 1, 2) == 52);
    CHECK(date_part(u"ww", day(2005, 1, 2), 1, 2) == 1);
    CHECK(date_part(u"ww", day(2005, 1, 1), 2, 2) == 53);
    CHECK(date_part(u"ww", day(2003, 12, 29), 2, 2) == 1);
    CHECK(date_part(u"ww", day(2003, 12, 28), 2, 2) == 52);
    CHECK(date_part(u"ww", day(2004, 1, 1), 1, 3) == 52);
    CHECK(date_part(u"ww", day(2004, 1, 4), 1, 3) == 1);
    CHECK(date_part(u"ww", day(2004, 12, 31), 1, 3) == 52);
}

TEST_CASE("0 takes the country's week") {
    const Country country(test::german_locale());
    CHECK(date_part(u"w", day(2004, 11, 7), 0) == 7);
    CHECK(date_part(u"ww", day(2003, 12, 29), 0, 0) == 1);
    CHECK(date_diff(u"ww", day(2004, 3, 6), day(2004, 3, 7), 0) == 0);
    CHECK((weekday_name(1) == u"Montag"));
    CHECK((weekday_name(1, true, 1) == u"So"));
    CHECK((month_name(3) == u"März"));
    CHECK((month_name(10, true) == u"Okt"));
}

TEST_CASE("months and weekdays have names") {
    const Country country(english_locale());
    CHECK((month_name(1) == u"January"));
    CHECK((month_name(12, true) == u"Dec"));
    CHECK((weekday_name(1) == u"Sunday"));
    CHECK((weekday_name(7, false, 2) == u"Sunday"));
    CHECK((weekday_name(1, true, 2) == u"Mon"));
    CHECK((weekday_name(2, true, 7) == u"Sun"));
    for (const std::int32_t wrong : {0, 13, -1}) CHECK(raised([&] { return month_name(wrong); }) == 5);
    for (const std::int32_t wrong : {0, 8, -1}) CHECK(raised([&] { return weekday_name(wrong); }) == 5);
    CHECK(raised([] { return weekday_name(1, false, 8); }) == 5);
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("what was added is the difference") {
    CHECK(rc::check([] {
        const std::u16string_view interval = all_intervals[*rc::gen::inRange<std::size_t>(0, std::size(all_intervals))];
        const Date from =
            to_date(*rc::gen::inRange<std::int64_t>(-200000, 200000), *rc::gen::inRange(0, 86400) / 86400.0);
        // "w" counts whole weeks, so it adds days and counts seven of them as one.
        const auto number = *rc::gen::inRange<std::int32_t>(-1000, 1000);
        const Date to = date_add(interval, number, from);
        RC_ASSERT(date_diff(interval, from, to) == (interval == u"w" ? number / 7 : number));
        RC_ASSERT(date_diff(interval, to, from) == -(interval == u"w" ? number / 7 : number));
    }));
}

TEST_CASE("the serial number is the calendar's") {
    CHECK(rc::check([] {
        const auto its_year = *rc::gen::inRange(100, 10000);
        const auto its_month = *rc::gen::inRange(1, 13);
        const auto its_day = *rc::gen::inRange(1, 32);
        using namespace std::chrono;
        const sys_days expected =
            sys_days{year{its_year} / month{static_cast<unsigned>(its_month)} / 1} + days{its_day - 1};
        RC_PRE(year_month_day{expected}.year() <= year{9999});
        const Date date = date_serial(its_year, its_month, its_day);
        RC_ASSERT(date.serial == (expected - sys_days{year{1899} / December / 30}).count());
        RC_ASSERT(date_part(u"w", date) == static_cast<std::int32_t>(weekday{expected}.c_encoding()) + 1);
    }));
}

TEST_CASE("weeks are those that counting gives") {
    CHECK(rc::check([] {
        const Date date{static_cast<double>(*rc::gen::inRange(-600000, 2900000))};
        const auto first_day = *rc::gen::inRange(1, 8);
        const auto rule = *rc::gen::inRange(1, 4);
        RC_ASSERT(date_part(u"ww", date, first_day, rule) == week_by_counting(date, first_day, rule));
    }));
}
#endif
