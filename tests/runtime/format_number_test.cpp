#include "runtime/format_number.hpp"

#include <doctest/doctest.h>

#include <limits>

#include "tests/runtime/format_rows.hpp"

using namespace qor;
using namespace qor::test;

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
