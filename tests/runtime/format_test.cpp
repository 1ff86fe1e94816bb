#include "runtime/format.hpp"

#include <doctest/doctest.h>

#include <cmath>
#include <limits>

#include "runtime/conversion.hpp"
#include "tests/runtime/format_rows.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace qor::test;

TEST_CASE("named formats") {
    const Country country(english_locale());
    check_formats({
        {1234.5, u"General Number", u"1234.5"},
        {true, u"general number", u"-1"},
        {Date{38061}, u"General Number", u"38061"},
        {1234.5, u"Currency", u"$1,234.50"},
        {-1234.5, u"CURRENCY", u"($1,234.50)"},
        {1234.5, u"Fixed", u"1234.50"},
        {0.125, u"Fixed", u"0.13"},
        {1234567.891, u"Standard", u"1,234,567.89"},
        {0.12345, u"Percent", u"12.35%"},
        {12345.678, u"Scientific", u"1.23E+04"},
        {2, u"Yes/No", u"Yes"},
        {0, u"Yes/No", u"No"},
        {-1, u"True/False", u"True"},
        {false, u"True/False", u"False"},
        {1, u"On/Off", u"On"},
        {0, u"On/Off", u"Off"},
        {afternoon, u"General Date", u"3/15/2004 1:05:00 PM"},
        {Date{38061}, u"General Date", u"3/15/2004"},
        {Date{0.25}, u"General Date", u"6:00:00 AM"},
        {afternoon, u"Long Date", u"Monday, March 15, 2004"},
        {afternoon, u"Medium Date", u"15-Mar-04"},
        {afternoon, u"Short Date", u"3/15/2004"},
        {afternoon, u"Long Time", u"1:05:00 PM"},
        {afternoon, u"Medium Time", u"01:05 PM"},
        {afternoon, u"Short Time", u"13:05"},
    });
}

TEST_CASE("without a pattern a value shows as it is") {
    const Country country(english_locale());
    check_formats({
        {1.5, u"", u"1.5"},
        {true, u"", u"True"},
        {u"x", u"", u"x"},
        {Null{}, u"", u""},
        {Empty{}, u"", u""},
        {Date{38061}, u"", u"3/15/2004"},
        {std::numeric_limits<double>::infinity(), u"0.0", u"1.#INF"},
    });
    CHECK(raised([] { return format(ErrorValue{2007}, u"0"); }) == 13);
    CHECK(raised([] { return format(Missing{}, u"0"); }) == 449);
    CHECK(raised([] { return format(Object(), u"yyyy"); }) == 91);
}

TEST_CASE("the country's names and signs") {
    const Country country(test::german_locale());
    check_formats({
        {1234567.5, u"#,##0.00", u"1.234.567,50"},
        {-1234.5, u"Currency", u"-1.234,50 €"},
        {afternoon, u"d/m/yyyy", u"15.3.2004"},
        {afternoon, u"Long Date", u"Montag, 15. März 2004"},
        {afternoon, u"General Date", u"15.03.2004 13:05:00"},
        {afternoon, u"ddd mmm", u"Mo Mär"},
        {u"1.234,5", u"0", u"1235"},
    });
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("what is formatted reads as the value again") {
    const Country country(english_locale());
    CHECK(rc::check("numbers", [](std::int32_t hundredths) {
        const double value = hundredths / 100.0;
        for (const std::u16string_view pattern :
             {u"0.00", u"#,##0.00", u"Currency", u"0.00##############", u"($0.00)"}) {
            if (pattern == u"($0.00)" && value > 0) continue;
            RC_ASSERT(to_double(format(pattern == u"($0.00)" ? -value : value, pattern)) == value);
        }
        RC_ASSERT(to_double(format(value, u"0.##############E+00")) == value);
    }));
    CHECK(rc::check("dates", [] {
        const Date day{static_cast<double>(*rc::gen::inRange(-657434, 2958466))};
        for (const std::u16string_view pattern : {u"mmmm d, yyyy", u"m/d/yyyy", u"yyyy-mm-dd", u"d mmm yyyy"}) {
            RC_ASSERT(to_date(format(day, pattern)).serial == day.serial);
        }
    }));
    CHECK(rc::check("times", [] {
        const auto second = *rc::gen::inRange(0, 86400);
        const Date moment{38061 + second / 86400.0};
        for (const std::u16string_view pattern :
             {u"m/d/yyyy hh:nn:ss", u"h:n:s AM/PM m/d/yyyy", u"mmm dd, yyyy h:nn:ssa/p"}) {
            RC_ASSERT(std::abs(to_date(format(moment, pattern)).serial - moment.serial) < 1e-9);
        }
    }));
}

TEST_CASE("no pattern makes it leave the rules") {
    CHECK(rc::check([] {
        const auto pieces = *rc::gen::container<std::vector<std::string>>(
            rc::gen::element<std::string>("0", "#", ".", ",", "%", "E+", "e-", ";", "\"", "\\", "d", "mmm", "yyyy", "h",
                                          "am/pm", "ttttt", "c", "@", "&", "<", "!", "/", ":", "x", " ", "w"));
        std::u16string pattern;
        for (const std::string& piece : pieces) pattern.append(piece.begin(), piece.end());
        const Variant value = *rc::gen::element<Variant>(0, -1.5, 1e300, 12345.678, Null{}, Empty{}, u"text", u"12",
                                                         Currency{5}, Date{38061.5}, true);
        const std::int32_t number = raised([&] { return format(value, pattern); });
        RC_ASSERT(number == 0 || number == 6);
    }));
    CHECK(rc::check("any code units", [](const std::vector<std::uint16_t>& units, double value) {
        const std::u16string pattern(units.begin(), units.end());
        const std::int32_t number = raised([&] { return format(value, pattern); });
        RC_ASSERT(number == 0 || number == 6);
    }));
}
#endif
