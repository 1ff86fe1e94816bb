#include "runtime/dates.hpp"

#include <doctest/doctest.h>

#include <limits>

#include "runtime/calendar.hpp"
#include "tests/functions/call.hpp"
#include "tests/runtime/country.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::Country;
using test::parameters_of;
using test::result_of;

namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

// The date as text, "" for what is no date.
std::u16string date_of(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = result_of(name, std::move(arguments));
    const auto* date = result.get_if<Date>();
    if (date == nullptr) CHECK(result.is_empty());
    return date == nullptr ? u"" : to_iso(*date);
}

std::int32_t whole(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = result_of(name, std::move(arguments));
    REQUIRE(result.is(Variant::Kind::long_integer));
    return *result.get_if<std::int32_t>();
}

std::u16string text(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = result_of(name, std::move(arguments));
    REQUIRE(result.is(Variant::Kind::text));
    return *result.get_if<std::u16string>();
}

#ifdef QOR_RAPIDCHECK
Date serial_of(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = result_of(name, std::move(arguments));
    RC_ASSERT(result.is(Variant::Kind::date));
    return *result.get_if<Date>();
}
#endif

}  // namespace

TEST_CASE("the parameters of the date functions have their names, order and defaults") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"EDATEADD") == Names{u"sInterval", u"dNumber", u"vDt"}));
    CHECK((parameters_of(u"EDATEDIFF") ==
           Names{u"sInterval", u"vDtFrm", u"vDtTo", u"lFirstDayOfWeek", u"lFirstWeekOfYear"}));
    CHECK((parameters_of(u"EDATEPART") == Names{u"sInterval", u"vDt", u"lFirstDayOfWeek", u"lFirstWeekOfYear"}));
    CHECK((parameters_of(u"EDAYSINMONTH") == Names{u"vDt", u"lNDay"}));
    CHECK((parameters_of(u"EEOMONTH") == Names{u"vDt", u"lLastDayOfMonth", u"lNPrd"}));
    CHECK((parameters_of(u"EEOWEEK") == Names{u"vDt", u"lFirstDayOfWeek", u"lNPrd"}));
    CHECK((parameters_of(u"EFOMONTH") == Names{u"vDt", u"lFirstDayOfMonth", u"lNPrd"}));
    CHECK((parameters_of(u"EFOWEEK") == Names{u"vDt", u"lFirstDayOfWeek", u"lNPrd"}));
    CHECK((parameters_of(u"EMONTHNAME") == Names{u"vDt", u"bAbbreviate"}));
    CHECK((parameters_of(u"EWEEKDAY") == Names{u"vDt", u"lFirstDayOfWeek"}));
    CHECK((parameters_of(u"EWEEKDAYNAME") == Names{u"lWeekDay", u"bAbbreviate", u"lFirstDayOfWeek"}));
    CHECK((parameters_of(u"EWORDDAY") == Names{u"vDt", u"lNumText"}));
    for (const auto* name : {u"EDAY", u"EMONTH", u"EYEAR"}) CHECK((parameters_of(name) == Names{u"vDt"}));
    for (const std::size_t place : {3U, 4U}) {
        CHECK(to_long(*find_function(u"EDATEDIFF")->parameters[place].default_value) == 1);
    }
    for (const std::size_t place : {2U, 3U}) {
        CHECK(find_function(u"EDATEPART")->parameters[place].default_value->is_missing());
    }
}

TEST_CASE("a date moves by intervals") {
    CHECK((date_of(u"EDATEADD", {u"yyyy", 1, u"2/29/2004"}) == u"2005-02-28"));
    CHECK((date_of(u"EDATEADD", {u"q", 2, u"8/31/2003"}) == u"2004-02-29"));
    CHECK((date_of(u"EDATEADD", {u"m", -1, u"3/31/2003"}) == u"2003-02-28"));
    CHECK((date_of(u"EDATEADD", {u"d", 1, u"2/28/1900"}) == u"1900-03-01"));
    CHECK((date_of(u"EDATEADD", {u"h", 25, Date{38061.5}}) == u"2004-03-16T13:00:00"));
    CHECK((date_of(u"EDATEADD", {u"n", -1, Date{38061}}) == u"2004-03-14T23:59:00"));
    CHECK((date_of(u"EDATEADD", {u"s", 61, Date{38061}}) == u"2004-03-15T00:01:01"));
    CHECK((date_of(u"EDATEADD", {u"m", u"1", 37652}) == u"2003-02-28"));  // as a cell's formula hands it over
    CHECK((date_of(u"EDATEADD", {u"D", 1, Empty{}}) == u"1899-12-31"));
}

TEST_CASE("boundaries between two dates are counted") {
    const Date saturday{38066};  // 20 March 2004
    const Date monday{38068};
    CHECK(whole(u"EDATEDIFF", {u"d", saturday, monday}) == 2);
    CHECK(whole(u"EDATEDIFF", {u"d", monday, saturday}) == -2);
    CHECK(whole(u"EDATEDIFF", {u"ww", saturday, monday}) == 1);  // the week begins on Sunday if it is left out
    CHECK(whole(u"EDATEDIFF", {u"ww", saturday, monday, 3}) == 0);
    CHECK(whole(u"EDATEDIFF", {u"m", u"1/31/2004", u"2/1/2004"}) == 1);
    CHECK(whole(u"EDATEDIFF", {u"h", Date{38061.5}, Date{38061.25}}) == -6);
    CHECK(whole(u"EDATEDIFF", {u"s", u"1/1/1900", u"1/1/2004"}) == 0);  // more than a long holds
    CHECK(whole(u"EDATEDIFF", {u"d", saturday, monday, 8}) == 0);
    CHECK(whole(u"EDATEDIFF", {u"d", saturday, monday, 1, 4}) == 0);
}

TEST_CASE("a date is taken apart") {
    const Variant moment = Date{38061.75};  // Monday, 15 March 2004, 18:00
    CHECK(whole(u"EDATEPART", {u"yyyy", moment}) == 2004);
    CHECK(whole(u"EDATEPART", {u"q", moment}) == 1);
    CHECK(whole(u"EDATEPART", {u"y", moment}) == 75);
    CHECK(whole(u"EDATEPART", {u"h", moment}) == 18);
    CHECK(whole(u"EDATEPART", {u"w", moment, 2}) == 1);
    CHECK(whole(u"EDAY", {moment}) == 15);
    CHECK(whole(u"EMONTH", {moment}) == 3);
    CHECK(whole(u"EDAY", {u"12/31/1899"}) == 31);
    CHECK(whole(u"EDAY", {-1.75}) == 29);  // 29 December 1899, 18:00
    CHECK(whole(u"EDAY", {Empty{}}) == 30);
    const Variant year = result_of(u"EYEAR", {moment});
    REQUIRE(year.is(Variant::Kind::integer));
    CHECK(*year.get_if<std::int16_t>() == 2004);
}

TEST_CASE("the country chooses the week that is left out, but in EDATEDIFF") {
    const Variant sunday = Date{37990};  // 4 January 2004; the first week with four days ends on it
    {
        const Country american(english_locale());
        CHECK(whole(u"EWEEKDAY", {sunday}) == 1);
        CHECK(whole(u"EDATEPART", {u"ww", sunday}) == 2);
        CHECK((date_of(u"EEOWEEK", {sunday}) == u"2004-01-10"));
        CHECK((date_of(u"EFOWEEK", {sunday}) == u"2004-01-04"));
        CHECK((text(u"EWEEKDAYNAME", {1}) == u"Sunday"));
    }
    const Country german(test::german_locale());
    CHECK(whole(u"EWEEKDAY", {sunday}) == 7);
    CHECK(whole(u"EWEEKDAY", {sunday, 1}) == 1);
    CHECK(whole(u"EDATEPART", {u"ww", sunday}) == 1);
    CHECK((date_of(u"EEOWEEK", {sunday}) == u"2004-01-04"));
    CHECK((date_of(u"EFOWEEK", {sunday}) == u"2003-12-29"));
    CHECK((text(u"EWEEKDAYNAME", {1}) == u"Montag"));
    CHECK((text(u"EWEEKDAYNAME", {1, true, 1}) == u"So"));
    CHECK((text(u"EMONTHNAME", {Date{38061}}) == u"März"));
    CHECK(whole(u"EDATEDIFF", {u"ww", Date{37989}, sunday}) == 1);  // Sunday begins a week
    CHECK(whole(u"EDATEDIFF", {u"ww", Date{37989}, sunday, 0}) == 0);
}

TEST_CASE("the days of a month, all of them or those of a weekday") {
    const Variant february = Date{38032};
    CHECK(whole(u"EDAYSINMONTH", {february}) == 29);
    CHECK(whole(u"EDAYSINMONTH", {february, 1}) == 5);
    for (std::int32_t code = 2; code <= 7; ++code) CHECK(whole(u"EDAYSINMONTH", {february, code}) == 4);
    for (const std::int32_t none : {0, 8, -1, largest, smallest}) {
        CHECK(whole(u"EDAYSINMONTH", {february, none}) == 29);
    }
    CHECK(whole(u"EDAYSINMONTH", {u"12/5/2003"}) == 31);
    CHECK(whole(u"EDAYSINMONTH", {u"2/1/1900"}) == 28);
    CHECK(whole(u"EDAYSINMONTH", {u"12/31/9999"}) == 31);
}

TEST_CASE("the ends of months") {
    const Variant january = u"1/31/2003";
    CHECK((date_of(u"EEOMONTH", {january}) == u"2003-01-31"));
    CHECK((date_of(u"EEOMONTH", {january, Missing{}, 1}) == u"2003-02-28"));
    CHECK((date_of(u"EEOMONTH", {january, 0, -2}) == u"2002-11-30"));
    CHECK((date_of(u"EEOMONTH", {january, 8, 13}) == u"2004-02-29"));
    CHECK((date_of(u"EEOMONTH", {january, 6, 1}) == u"2003-02-28"));  // itself a Friday
    CHECK((date_of(u"EEOMONTH", {january, 7, 1}) == u"2003-02-22"));
    CHECK((date_of(u"EEOMONTH", {Date{38061.75}}) == u"2004-03-31"));
    CHECK((date_of(u"EEOMONTH", {u"12/1/9999", 0, 0}) == u"9999-12-31"));
    CHECK((date_of(u"EEOMONTH", {u"12/1/9999", 0, 1}).empty()));
    CHECK((date_of(u"EEOMONTH", {january, 0, largest}).empty()));
    CHECK((date_of(u"EEOMONTH", {january, 0, smallest}).empty()));
}

TEST_CASE("the beginnings of months") {
    const Variant december = u"12/15/2003";
    CHECK((date_of(u"EFOMONTH", {december}) == u"2003-12-01"));
    CHECK((date_of(u"EFOMONTH", {december, Missing{}, 1}) == u"2004-01-01"));
    CHECK((date_of(u"EFOMONTH", {december, 5, 1}) == u"2004-01-01"));  // itself a Thursday
    CHECK((date_of(u"EFOMONTH", {december, 4, 1}) == u"2004-01-07"));
    CHECK((date_of(u"EFOMONTH", {december, 9, -12}) == u"2002-12-01"));
    CHECK((date_of(u"EFOMONTH", {Date{38061.75}}) == u"2004-03-01"));
    CHECK((date_of(u"EFOMONTH", {december, 0, largest}).empty()));
    CHECK((date_of(u"EFOMONTH", {december, 0, smallest}).empty()));
}

TEST_CASE("the ends of weeks keep the time of day") {
    const Variant saturday = u"3/20/2004";
    const Variant sunday = u"3/14/2004";
    CHECK((date_of(u"EEOWEEK", {saturday, 1}) == u"2004-03-20"));
    CHECK((date_of(u"EFOWEEK", {sunday, 1}) == u"2004-03-14"));
    CHECK((date_of(u"EEOWEEK", {sunday, 1}) == u"2004-03-20"));
    CHECK((date_of(u"EFOWEEK", {saturday, 1}) == u"2004-03-14"));
    CHECK((date_of(u"EEOWEEK", {saturday, 2, -1}) == u"2004-03-14"));
    CHECK((date_of(u"EFOWEEK", {saturday, 7, 2}) == u"2004-04-03"));
    CHECK((date_of(u"EEOWEEK", {Date{38061.75}, 1}) == u"2004-03-20T18:00:00"));
    CHECK((date_of(u"EFOWEEK", {Date{38061.75}, 1}) == u"2004-03-14T18:00:00"));
    for (const auto* name : {u"EEOWEEK", u"EFOWEEK"}) {
        CHECK((date_of(name, {saturday, 8}).empty()));
        CHECK((date_of(name, {saturday, -1}).empty()));
        CHECK((date_of(name, {saturday, 1, largest}).empty()));
        CHECK((date_of(name, {saturday, 1, smallest}).empty()));
    }
    // The calendar begins on a Friday, and the move to that day's beginning passes through the day before it.
    CHECK((date_of(u"EFOWEEK", {Date{-657434}, 6}).empty()));
    CHECK((date_of(u"EFOWEEK", {Date{-657427}, 6}) == u"0100-01-08"));
}

TEST_CASE("months and weekdays have names") {
    const Country american(english_locale());
    CHECK((text(u"EMONTHNAME", {u"9/1/2004"}) == u"September"));
    CHECK((text(u"EMONTHNAME", {u"9/1/2004", true}) == u"Sep"));
    CHECK((text(u"EWEEKDAYNAME", {7}) == u"Saturday"));
    CHECK((text(u"EWEEKDAYNAME", {7, true}) == u"Sat"));
    CHECK((text(u"EWEEKDAYNAME", {7, false, 2}) == u"Sunday"));
    for (const std::int32_t none : {0, 8, -1}) CHECK(text(u"EWEEKDAYNAME", {none}).empty());
    CHECK(text(u"EWEEKDAYNAME", {1, false, 8}).empty());
}

TEST_CASE("what is no date leaves nothing") {
    for (const Variant& no_date : {Variant(u"no date"), Variant(u"2/30/2003"), Variant(2958466), Variant(Null{}),
                                   Variant(ErrorValue{2007}), Variant(1e300)}) {
        for (const auto* name : {u"EEOMONTH", u"EEOWEEK", u"EFOMONTH", u"EFOWEEK", u"EYEAR"}) {
            CHECK(result_of(name, {no_date}).is_empty());
        }
        for (const auto* name : {u"EDAY", u"EDAYSINMONTH", u"EMONTH", u"EWEEKDAY"}) CHECK(whole(name, {no_date}) == 0);
        for (const auto* name : {u"EMONTHNAME", u"EWORDDAY"}) CHECK(text(name, {no_date}).empty());
        CHECK(result_of(u"EEOMONTH", {no_date, 7, 1}).is_empty());
        CHECK(result_of(u"EDATEADD", {u"d", 1, no_date}).is_empty());
        CHECK(whole(u"EDATEDIFF", {u"d", no_date, 1}) == 0);
        CHECK(whole(u"EDATEDIFF", {u"d", 1, no_date}) == 0);
        CHECK(whole(u"EDATEPART", {u"d", no_date}) == 0);
    }
}

TEST_CASE("an unknown interval leaves nothing") {
    for (const auto* interval : {u"", u"x", u"yy", u"mm", u" d"}) {
        CHECK(result_of(u"EDATEADD", {interval, 1, 38061}).is_empty());
        CHECK(whole(u"EDATEDIFF", {interval, 1, 2}) == 0);
        CHECK(whole(u"EDATEPART", {interval, 38061}) == 0);
    }
    CHECK(result_of(u"EDATEADD", {u"d", 1e300, 38061}).is_empty());
    CHECK(test::raised([] { result_of(u"EDATEADD", {u"d", u"many", 38061}); }) == 13);
    CHECK(test::raised([] { result_of(u"EDAY", {Missing{}}); }) == 449);
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("months and weeks hold together") {
    CHECK(rc::check("a month's weekdays are its days, and its first and last ones lie at its ends", [] {
        const Date date{static_cast<double>(*rc::gen::inRange(-600000, 2900000))};
        const auto months_on = *rc::gen::inRange(-1200, 1200);
        std::int32_t days = 0;
        for (std::int32_t code = 1; code <= 7; ++code) {
            days += whole(u"EDAYSINMONTH", {date, code});
            const Date end = serial_of(u"EEOMONTH", {date, 0, months_on});
            const Date last = serial_of(u"EEOMONTH", {date, code, months_on});
            RC_ASSERT(date_part(u"w", last) == code);
            RC_ASSERT((last.serial <= end.serial && last.serial > end.serial - 7));
            const Date start = serial_of(u"EFOMONTH", {date, 0, months_on});
            const Date first = serial_of(u"EFOMONTH", {date, code, months_on});
            RC_ASSERT(date_part(u"w", first) == code);
            RC_ASSERT((first.serial >= start.serial && first.serial < start.serial + 7));
            RC_ASSERT(serial_of(u"EFOMONTH", {date, 0, months_on + 1}).serial == end.serial + 1);
        }
        RC_ASSERT(days == whole(u"EDAYSINMONTH", {date}));
    }));
    CHECK(rc::check("a week has seven days and holds its date", [] {
        const Date date{static_cast<double>(*rc::gen::inRange(-600000, 2900000))};
        const auto first_day = *rc::gen::inRange(1, 8);
        const auto weeks_on = *rc::gen::inRange(-1000, 1000);
        const Date start = serial_of(u"EFOWEEK", {date, first_day, weeks_on});
        const Date end = serial_of(u"EEOWEEK", {date, first_day, weeks_on});
        RC_ASSERT(date_part(u"w", start) == first_day);
        RC_ASSERT(end.serial - start.serial == 6);
        RC_ASSERT((start.serial - 7 * weeks_on <= date.serial && date.serial <= end.serial - 7 * weeks_on));
    }));
}
#endif
