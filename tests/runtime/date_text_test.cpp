#include "runtime/date_text.hpp"

#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "runtime/calendar.hpp"
#include "runtime/clock.hpp"
#include "runtime/locale.hpp"
#include "runtime/value_tests.hpp"
#include "tests/runtime/country.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::Country;
using test::TimeStopped;

namespace {

struct Row {
    std::u16string_view text;
    double serial;
};

void check_reads(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        CAPTURE(std::string(row.text.begin(), row.text.end()));
        const auto date = parse_date(row.text);
        REQUIRE(date);
        CHECK(date->serial == doctest::Approx(row.serial).epsilon(1e-13));
    }
}

constexpr double jan_2_2003 = 37623;
constexpr double feb_3_2014 = 41673;

}  // namespace

// The readings are those measured of the automation library of Windows in English (United States).
TEST_CASE("three numbers are a date in the order of the country, or else in another") {
    const Country country(english_locale());
    check_reads({
        {u"1 2 3", jan_2_2003},     {u"14 2 3", feb_3_2014}, {u"2 14 3", 37666},       {u"2 3 14", feb_3_2014},
        {u"32 2 3", 11722},         {u"2 3 32", 11722},      {u"1 2 29", 47120},       {u"1 2 30", 10960},
        {u"1 2 31", 11325},         {u"1/2/1970", 25570},    {u"1-2-1970", 25570},     {u"1,2,1970", 25570},
        {u" 1 / 2 / 1970 ", 25570}, {u"13-1-1970", 25581},   {u"1970-1-13", 25581},    {u"1970-13-1", 25581},
        {u"02/29/2000", 36585},     {u"1/1/100", -657434},   {u"12/31/9999", 2958465}, {u"1/2/99", 36162},
        {u"0002/01/03", 37653},
    });
}

TEST_CASE("a month may be named") {
    const Country country(english_locale());
    check_reads({
        {u"2 January, 1970", 25570},
        {u"2 January 1970", 25570},
        {u"2 jan 1970", 25570},
        {u"2/Jan/1970", 25570},
        {u"2-JAN-1970", 25570},
        {u"2Jan1970", 25570},
        {u"Jan 2, 1970", 25570},
        {u"Jan. 2, 1970", 25570},
        {u"1970 Jan 2", 25570},
        {u"1970 2 January", 25570},
        {u"Jan 35", 12785},
        {u"35 Jan", 12785},
        {u"Jan-35", 12785},
        {u"35/Jan", 12785},
        {u"January 2004", 37987},
        {u"Feb 29 2004", 38046},
    });
}

TEST_CASE("two numbers are a day of this year, or else a month") {
    const Country country(english_locale());
    const TimeStopped clock(Date{38061.75});  // 15 March 2004
    check_reads({
        {u"1 2", 37988},
        {u"2/1", 38018},
        {u"14 1", 38000},
        {u"1 14", 38000},
        {u"Jan 2", 37988},
        {u"2 Jan", 37988},
        {u"30 2", 10990},
        {u"2 30", 10990},
        {u"2/29", 38046},
        {u"3/2005", 38412},
    });
    const TimeStopped next_year(Date{38061.75 + 366});
    check_reads({{u"2/29", 47150}});  // 2005 has no such day; February 2029
}

TEST_CASE("a time stands alone, before the date or behind it") {
    const Country country(english_locale());
    const TimeStopped clock(Date{38061.75});
    const auto time = [](int hour, int minute, int second = 0) {
        return (hour * 3600 + minute * 60 + second) / 86400.0;
    };
    check_reads({
        {u"1 am", time(1, 0)},
        {u"0.1", time(0, 1)},
        {u"2.5", time(2, 5)},
        {u"13.50", time(13, 50)},
        {u"0:20", time(0, 20)},
        {u"3:5", time(3, 5)},
        {u"00:00 AM", 0},
        {u"12:59 A", time(0, 59)},
        {u"00:00 pm", 0.5},
        {u"00:00p", 0.5},
        {u"12:59 pm", time(12, 59)},
        {u"13:00 AM", time(13, 0)},
        {u"13:00 PM", time(13, 0)},
        {u"11:59:59PM", time(23, 59, 59)},
        {u"0.1.0", time(0, 1)},
        {u"1.5.2", time(1, 5, 2)},
        {u"3 am 1 2", 37988 + time(3, 0)},
        {u"1 2 3 am", 37988 + time(3, 0)},
        {u"1.2 3 4", 38050 + time(1, 2)},
        {u"3 4 1.2", 38050 + time(1, 2)},
        {u"1.2.3 4 5", 38082 + time(1, 2, 3)},
        {u"1.2 3 4 5", 38415 + time(1, 2)},
        {u"1 2 3 4.5", jan_2_2003 + time(4, 5)},
        {u"1.2.3 4 5 6", 38812 + time(1, 2, 3)},
        {u"1 2 3 4.5.6", jan_2_2003 + time(4, 5, 6)},
        {u"6/30/2011 01:20:34", 40724 + time(1, 20, 34)},
        {u"6/30/2011 01:20:34 PM", 40724 + time(13, 20, 34)},
        {u"6/30/2011\u300001:20:34", 40724 + time(1, 20, 34)},
        {u"2013-05-14 02:04:12", 41408 + time(2, 4, 12)},
        {u"11:00 PM 12/29/1899", -1 - time(23, 0)},
    });
}

TEST_CASE("anything else is no date") {
    const Country country(english_locale());
    const TimeStopped clock(Date{38061.75});
    for (const std::u16string_view text : {
             u"",
             u" ",
             u"True",
             u"January",
             u"0.",
             u".0",
             u"-1.1",
             u"1.1-",
             u"1;2;3",
             u"1*2*3",
             u"1@2@3",
             u"(1:2)",
             u"1|2|3",
             u"0",
             u"1",
             u"38061",
             u"0.60",
             u"24.00",
             u"0:60",
             u"24:00",
             u"25:00",
             u"1 2 am",
             u"1 am 2",
             u"1.5 2",
             u"1 5.2",
             u"2 32 3",
             u"1 2 am 3",
             u"1 2.3 4",
             u"1.2.3 4",
             u"1 2.3.4",
             u"1.2 3.4",
             u"1.2.3.4",
             u"1 2 3 4",
             u"1 am 2 3.4",
             u"1 2 am 3.4",
             u"1.2 3 am 4",
             u"1.2 3 4 am",
             u"1.2.3 4.5",
             u"1 2 3 4 5",
             u"1 2 3 am 4.5",
             u"1.2.3.4.5.6",
             u"32 49",
             u"0 49",
             u"13/13/2003",
             u"02/29/1900",
             u"02/29/2003",
             u"4/31/2003",
             u"1//2/2003",
             u"1/2/2003/",
             u"/1/2/2003",
             u"1/2/10000",
             u"1/256/2003",
             u"257/1/2003",
             u"am",
             u"1:2:3:4",
             u"am 1:00",
             u"1:00 am pm",
             u"1:00 xm",
             u"Jan Feb 2",
             u"Jan 2 Feb",
             u"1:Jan",
             u"Monday",
             u"02.01.1970",
             u"02.01.1970 00:00:00",
             u"2013-05-14 02:04:12.017000000",
             u"Monday, January 5, 2004",
             u"1 2 3 4 5 6 7 8",
             u"\u0661/\u0662/2003",
             u"1/2/2003 25:00",
         }) {
        CAPTURE(std::string(text.begin(), text.end()));
        CHECK_FALSE(parse_date(text));
    }
}

TEST_CASE("a country that writes points in dates reads them there") {
    const Country country(test::german_locale());
    check_reads({
        {u"02.01.1970", 25570},
        {u"02.13.1970", 25612},
        {u"02-13-1970", 25612},
        {u"2020-01-11", 43841},
        {u"2173-10-14", 100000},
        {u"02.01.1970 00:00:00", 25570},
        {u"2. März 2004", 38048},
        {u"2 MÄR 2004", 38048},
    });
    CHECK_FALSE(parse_date(u"2 Mar 2004"));
}

TEST_CASE("the order of the year first") {
    Locale swedish = english_locale();
    swedish.date_order = DateOrder::year_month_day;
    const Country country(swedish);
    check_reads({{u"04-03-15", 38061}, {u"2004-03-15", 38061}, {u"15-03-2004", 38061}, {u"3/15/2004", 38061}});
}

TEST_CASE("whether a value is a date") {
    CHECK(is_date(Date{0}));
    CHECK(is_date(u"3/15/2004"));
    CHECK_FALSE(is_date(u"38061"));
    CHECK_FALSE(is_date(38061.0));
    CHECK_FALSE(is_date(true));
    CHECK_FALSE(is_date(Empty{}));
    CHECK_FALSE(is_date(Null{}));
    CHECK_FALSE(is_date(ErrorValue{2007}));
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("no text makes the parser of dates fail, and what it reads is in the calendar") {
    CHECK(rc::check([] {
        const auto pieces = *rc::gen::container<std::vector<std::string>>(
            rc::gen::element<std::string>("1", "2", "12", "31", "29", "1999", "2004", "100", "99999999999", "Jan",
                                          "february", "Mai", "am", "PM", "a", " ", "/", "-", ".", ":", ",", "x", "0"));
        std::u16string text;
        for (const std::string& piece : pieces) text.append(piece.begin(), piece.end());
        if (const auto date = parse_date(text)) RC_ASSERT(is_in_calendar(*date));
    }));
    CHECK(rc::check("any code units", [](const std::vector<std::uint16_t>& units) {
        const std::u16string text(units.begin(), units.end());
        if (const auto date = parse_date(text)) RC_ASSERT(is_in_calendar(*date));
    }));
}
#endif
