#include <doctest/doctest.h>

#include <cmath>

#include "runtime/calendar.hpp"
#include "runtime/clock.hpp"
#include "runtime/format.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace std::chrono;
using test::raised;

TEST_CASE("a date is written by its pattern") {
    const Date date{38052};  // Saturday, 6 March 2004
    CHECK((format(date, u"mmmm d, yyyy") == u"March 6, 2004"));
    CHECK((format(date, u"MMMM D, YYYY") == u"March 6, 2004"));
    CHECK((format(date, u"dddd") == u"Saturday"));
    CHECK((format(date, u"ddd dd mmm yy") == u"Sat 06 Mar 04"));
    CHECK((format(date, u"m/d/yyyy") == u"3/6/2004"));
    CHECK((format(date, u"mm.dd.") == u"03.06."));
    CHECK((format(Date{38052.75}, u"hh:nn:ss h n s") == u"18:00:00 18 0 0"));
}

TEST_CASE("the calendar reaches from the year 100 to 9999") {
    CHECK((format(Date{-657434}, u"mmmm d, yyyy") == u"January 1, 0100"));
    CHECK((format(Date{2958465}, u"mmmm d, yyyy") == u"December 31, 9999"));
    CHECK((format(Date{0}, u"dddd, mmmm d, yyyy") == u"Saturday, December 30, 1899"));
    CHECK((format(Date{60}, u"m/d/yyyy") == u"2/28/1900"));
    CHECK(raised([] { return format(Date{2958466}, u"d"); }) == 6);
    CHECK(raised([] { return format(Date{-657435}, u"d"); }) == 6);
    CHECK(raised([] { return format(Date{2958465.999999}, u"d"); }) == 6);
}

TEST_CASE("the fraction is the time of day on both sides of the first day") {
    CHECK((to_iso(Date{1.25}) == u"1899-12-31T06:00:00"));
    CHECK((to_iso(Date{-1.25}) == u"1899-12-29T06:00:00"));
    CHECK((to_iso(Date{-0.25}) == u"1899-12-30T06:00:00"));
    CHECK((to_iso(Date{38061}) == u"2004-03-15"));
    CHECK((to_iso(Date{38061.545138888889}) == u"2004-03-15T13:05:00"));
    CHECK((to_iso(Date{38061.9999999}) == u"2004-03-16"));
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("a date made of its parts falls into the same parts") {
    CHECK(rc::check([] {
        const auto serial = *rc::gen::inRange(-657434, 2958466);
        const auto second = seconds{*rc::gen::inRange(0, 86400)};
        const CivilTime day = to_civil(Date{static_cast<double>(serial)});
        const Date date = to_date(day.day, second);
        RC_ASSERT(std::trunc(date.serial) == serial);
        const CivilTime civil = to_civil(date);
        RC_ASSERT(civil.day == day.day);
        RC_ASSERT(civil.time.to_duration() == second);
        RC_ASSERT(civil.weekday.c_encoding() == static_cast<unsigned>((serial + 657434 + 5) % 7));
    }));
}
#endif

TEST_CASE("the clock can be replaced") {
    const Date before = now();
    CHECK(before.serial > 45000);
    CHECK(today().serial == std::trunc(before.serial));
    const auto first_clock = wall_clock();
    wall_clock() = [] { return Date{38061.75}; };
    CHECK(now().serial == 38061.75);
    CHECK(today().serial == 38061);
    wall_clock() = first_clock;
}
