#include "runtime/format_date.hpp"

#include <doctest/doctest.h>

#include "tests/runtime/format_rows.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using namespace qor::test;

TEST_CASE("dates by their fields") {
    const Country country(english_locale());
    check_formats({
        {afternoon, u"c", u"3/15/2004 1:05:00 PM"},
        {morning, u"d dd ddd dddd", u"8 08 Mon Monday"},
        {morning, u"ddddd|dddddd", u"3/8/2004|Monday, March 8, 2004"},
        {morning, u"m mm mmm mmmm", u"3 03 Mar March"},
        {morning, u"w ww q y", u"2 11 1 68"},
        {morning, u"yy yyyy", u"04 2004"},
        {morning, u"h hh n nn s ss", u"9 09 5 05 1 01"},
        {morning, u"ttttt", u"9:05:01 AM"},
        {morning, u"hh:mm:ss", u"09:05:01"},
        {morning, u"h \"x\" m", u"9 x 5"},
        {morning, u"mm:ss", u"03:01"},
        {morning, u"h:n m", u"9:5 3"},
        {morning, u"mm/dd,yyyy", u"03/08,2004"},
        {afternoon, u"h:nn AM/PM", u"1:05 PM"},
        {afternoon, u"h:nn am/pm", u"1:05 pm"},
        {afternoon, u"hhA/P", u"01P"},
        {morning, u"h a/p", u"9 a"},
        {morning, u"h AMPM", u"9 AM"},
        {Date{0.0}, u"h AM/PM", u"12 AM"},
        {Date{0.5}, u"h AM/PM", u"12 PM"},
        {afternoon, u"\\d\\a\\y d", u"day 15"},
        {afternoon, u"[h]", u"[13]"},
        {afternoon, u"d;m", u"15;3"},
        {afternoon, u":", u":"},
        {Date{-1.25}, u"m/d/yyyy h:nn", u"12/29/1899 6:00"},
        {38061, u"yyyy-mm-dd", u"2004-03-15"},
        {u"March 15, 2004", u"yyyy-mm-dd", u"2004-03-15"},
        {u"38061", u"yyyy-mm-dd", u"2004-03-15"},
        {u"some day", u"yyyy", u"some day"},
        {Null{}, u"yyyy", u""},
        {Date{38061}, u"0", u"38061"},
    });
    CHECK((format(Date{37984}, u"ww", 2, 2) == u"1"));  // Monday, 29 December 2003
    CHECK((format(morning, u"w", 2) == u"1"));
    CHECK(raised([] { return format(1e7, u"yyyy"); }) == 6);
    CHECK(raised([] { return format(1, u"ww", 8); }) == 5);
}

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
