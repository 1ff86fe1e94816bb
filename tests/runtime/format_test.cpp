#include "runtime/format.hpp"

#include <doctest/doctest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "runtime/conversion.hpp"
#include "runtime/locale.hpp"
#include "tests/runtime/country.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::Country;
using test::raised;

namespace {

struct Row {
    Variant value;
    std::u16string_view pattern;
    std::u16string_view text;
};

void check_formats(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        CAPTURE(std::string(row.pattern.begin(), row.pattern.end()));
        const std::u16string text = format(row.value, row.pattern);
        CAPTURE(std::string(text.begin(), text.end()));
        CHECK((text == row.text));
    }
}

constexpr Date afternoon{38061.545138888889};  // Monday, 15 March 2004, 1:05 PM
constexpr Date morning{38054.378483796296};    // Monday, 8 March 2004, 9:05:01 AM

}  // namespace

TEST_CASE("numbers by placeholders") {
    const Country country(english_locale());
    check_formats({
        {1234.567, u"0", u"1235"},
        {1234.567, u"#", u"1235"},
        {1234.567, u"0.00", u"1234.57"},
        {1234.5, u"0.00##", u"1234.50"},
        {1234.5678, u"0.00##", u"1234.5678"},
        {1234.56, u"0.0#0", u"1234.560"},
        {7, u"000", u"007"},
        {7, u"0#", u"07"},
        {7, u"#0#", u"07"},
        {7, u"##", u"7"},
        {0, u"0", u"0"},
        {0, u"#", u""},
        {0, u"#.##", u"."},
        {5, u"#.##", u"5."},
        {0.5, u"#.##", u".5"},
        {0.5, u"0.0", u"0.5"},
        {12.5, u".00", u"12.50"},
        {0.25, u".00", u".25"},
        {-7.5, u"0.0", u"-7.5"},
        {-5, u"$0", u"-$5"},
        {-0.001, u"0.00", u"-0.00"},
        {1234567, u"#,##0", u"1,234,567"},
        {1024, u"#,##0", u"1,024"},
        {1023, u"#,##0", u"1,023"},
        {0, u"#,##0", u"0"},
        {999999.995, u"#,##0.00", u"1,000,000.00"},
        {7, u"0,000", u"0,007"},
        {1234567, u"0,", u"1235"},
        {1234567, u"0,.0", u"1234.6"},
        {1234567890, u"#,##0,,", u"1,235"},
        {0.256, u"0%", u"26%"},
        {0.5, u"0.0%", u"50.0%"},
        {0.5, u"%0", u"%50"},
        {5551234567.0, u"(000) 000-0000", u"(555) 123-4567"},
        {1234, u"0-0", u"123-4"},
        {5, u"0 \"days\"", u"5 days"},
        {5, u"0 \\d", u"5 d"},
        {5, u"0 kg", u"5 kg"},
        {5, u"\"0\"0", u"05"},
        {5, u"0\"unclosed", u"5unclosed"},
        {5, u"-+$() 0", u"-+$() 5"},
        {5, u"\"x\"", u"x"},
        {1e20, u"0", u"100000000000000000000"},
        {1e-10, u"0.00", u"0.00"},
        {123.456, u"0.0.0", u"123.4.6"},
    });
}

TEST_CASE("numbers round to the nearest, a tie away from 0, in their 15 digits") {
    const Country country(english_locale());
    check_formats({
        {0.5, u"0", u"1"},
        {2.5, u"0", u"3"},
        {-2.5, u"0", u"-3"},
        {0.49, u"0", u"0"},
        {0.125, u"0.00", u"0.13"},
        {1.005, u"0.00", u"1.01"},
        {0.995, u"0.00", u"1.00"},
        {9.5, u"0", u"10"},
        {99.95, u"#.#", u"100."},
        {0.05, u"0.0", u"0.1"},
        {0.04, u"#.0", u".0"},
        {0.1 + 0.2, u"0.####################", u"0.3"},
        {1.0 / 3, u"0.00000000000000000000", u"0.33333333333333300000"},
        {Currency{std::numeric_limits<std::int64_t>::max()}, u"0.0000", u"922337203685477.5807"},
        {Currency{std::numeric_limits<std::int64_t>::min()}, u"#,##0.000", u"-922,337,203,685,477.581"},
        {Currency{9950}, u"0.00", u"1.00"},
        {Currency{5000}, u"0.00", u"0.50"},
        {Currency{50}, u"0.00", u"0.01"},
        {Currency{49}, u"0.00", u"0.00"},
    });
}

TEST_CASE("numbers with an exponent") {
    const Country country(english_locale());
    check_formats({
        {12345, u"0.00E+00", u"1.23E+04"},
        {12345, u"0.00E-00", u"1.23E04"},
        {0.00012345, u"0.00e-00", u"1.23e-04"},
        {0.00012345, u"0.00E+0", u"1.23E-4"},
        {12345, u"00.0E+00", u"12.3E+03"},
        {9.996, u"0.00E+00", u"1.00E+01"},
        {0, u"0.00E+00", u"0.00E+00"},
        {-5e120, u"0E+00", u"-5E+120"},
        {5, u"0.0#E+0", u"5.0E+0"},
        {5, u"0E", u"5E"},
        {5, u"0E+", u"5E+"},
        {1234, u"0E+00 x", u"1E+03 x"},
    });
}

TEST_CASE("a section for what is above, below and equal to 0, and for Null") {
    const Country country(english_locale());
    constexpr std::u16string_view four = u"0.0;(0.0);\\z\\e\\r\\o;\"none\"";
    check_formats({
        {1.25, four, u"1.3"},
        {-1.25, four, u"(1.3)"},
        {0, four, u"zero"},
        {Null{}, four, u"none"},
        {Empty{}, four, u"zero"},
        {-5, u"$0;;\\z", u"-$5"},
        {0, u"0.0;-0.0;", u"0.0"},
        {Null{}, u"0.0", u""},
        {-5, u"0;\\;0", u";5"},
        {-5, u"0;\"a;b\"0", u"a;b5"},
    });
}

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

TEST_CASE("texts by places") {
    const Country country(english_locale());
    check_formats({
        {u"ab", u"@@@@", u"  ab"},
        {u"ab", u"&&&&", u"ab"},
        {u"ab", u"!@@@@", u"ab  "},
        {u"abcd", u"@@", u"abcd"},
        {u"abcd", u"!@-@", u"a-bcd"},
        {u"abcd", u"@-@", u"abc-d"},
        {u"ab", u"@@-@@", u"  -ab"},
        {u"aBc", u"<", u"abc"},
        {u"aBc", u">", u"ABC"},
        {u"aBc", u">@@@@\"x\"", u" ABCx"},
        {u"ä", u">", u"Ä"},
        {u"", u"@;\"nothing\"", u"nothing"},
        {Null{}, u"@;\"nothing\"", u"nothing"},
        {u"abc", u"@;\"nothing\"", u"abc"},
        {12.5, u"@@@@@@", u"  12.5"},
        {true, u"<", u"true"},
    });
}

TEST_CASE("texts by patterns of numbers") {
    const Country country(english_locale());
    check_formats({
        {u"12.345", u"0.0", u"12.3"},
        {u"$1,000", u"0", u"1000"},
        {u"abc", u"0.0", u"abc"},
        {u"abc", u"Currency", u"abc"},
        {u"abc", u"General Number", u"abc"},
        {u"007", u"General Number", u"7"},
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
