#include "runtime/calendar.hpp"

#include <doctest/doctest.h>

#include <cmath>

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace std::chrono;

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
