#include "runtime/conversion.hpp"

#include <doctest/doctest.h>

#include <limits>
#include <vector>

#include "runtime/calendar.hpp"
#include "runtime/value_tests.hpp"
#include "tests/runtime/country.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::raised;

namespace {

class Thing final : public Dispatch {
  public:
    Variant invoke(const MemberName&, Access, Arguments) override { return {}; }
    std::u16string_view type_name() const noexcept override { return u"Thing"; }
};

// Stands for a value, as a cell does.
class Cell final : public Dispatch {
  public:
    explicit Cell(Variant value) : value_(std::move(value)) {}
    Variant invoke(const MemberName&, Access, Arguments) override { return {}; }
    Variant default_value() override { return value_; }
    std::u16string_view type_name() const noexcept override { return u"Cell"; }

  private:
    Variant value_;
};

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST_CASE("an object converts as the value that it stands for") {
    CHECK(to_double(make_object<Cell>(2.5)) == 2.5);
    CHECK(to_long(make_object<Cell>(u"7")) == 7);
    CHECK(to_boolean(make_object<Cell>(u"True")));
    CHECK((to_text(make_object<Cell>(true)) == u"True"));
    CHECK(to_date(make_object<Cell>(u"3/1/2004")).serial == 38047);
    CHECK(to_currency(make_object<Cell>(u"1.25")).ten_thousandths == 12500);
    CHECK(raised([] { to_double(make_object<Cell>(Object())); }) == 438);
    CHECK(raised([] { to_double(make_object<Cell>(make_object<Cell>(1))); }) == 438);
    CHECK(raised([] { to_text(make_object<Thing>()); }) == 438);
    CHECK(raised([] { to_boolean(Object()); }) == 91);
}

TEST_CASE("every kind of value that is a number converts to it") {
    CHECK(to_double(Empty{}) == 0);
    CHECK(to_double(true) == -1);
    CHECK(to_double(false) == 0);
    CHECK(to_double(std::int16_t{-7}) == -7);
    CHECK(to_double(100000) == 100000);
    CHECK(to_double(1.5F) == 1.5);
    CHECK(to_double(Currency{12345}) == 1.2345);
    CHECK(to_double(Date{38061.25}) == 38061.25);
}

TEST_CASE("text converts to the number that it shows") {
    struct Row {
        std::u16string_view text;
        double number;
    };
    for (const Row& row : std::vector<Row>{
             {u"0", 0},
             {u"12", 12},
             {u"  12.5\t", 12.5},
             {u"-12.5", -12.5},
             {u"+3", 3},
             {u"- 3", -3},
             {u"3-", -3},
             {u"3 -", -3},
             {u"3+", 3},
             {u"(3.5)", -3.5},
             {u"( 3.5 )", -3.5},
             {u".5", .5},
             {u"5.", 5},
             {u"1,234,567.5", 1234567.5},
             {u"1,2", 12},
             {u"1,,000", 1000},
             {u"1,234.5,6", 1234.56},
             {u"$1,234.50", 1234.5},
             {u"-$5", -5},
             {u"$-5", -5},
             {u"($5)", -5},
             {u"5$", 5},
             {u"5 $ -", -5},
             {u"1e3", 1000},
             {u"1E-3", .001},
             {u"1D2", 100},
             {u"2.5d+2", 250},
             {u"0.1", 0.1},
             {u"1E-400", 0},
             {u"0E999999999999", 0},
             {u"123456789012345678901234567890", 123456789012345678901234567890.0},
             {u"&HFF", 255},
             {u"&h7fff", 32767},
             {u"&HFFFF", -1},
             {u"&H8000", -32768},
             {u"&HFFFF&", 65535},
             {u"&H10000", 65536},
             {u"&HFFFFFFFF", -1},
             {u"&O17", 15},
             {u" &o177777 ", -1},
         }) {
        CHECK(to_double(row.text) == row.number);
    }
}

TEST_CASE("text that shows no number is a type mismatch") {
    for (const std::u16string_view text :
         {u"$",   u"$$5",  u"$5$",   u"5%",  u"-5-", u",5",   u"(5-)",   u"",       u" ",   u"abc", u"1a",
          u"1 2", u",1",   u"1.2.3", u"--1", u"-1-", u"(-1)", u"(1",     u"1)",     u"1E",  u"1E+", u".",
          u"-",   u"True", u"&",     u"&H",  u"&HG", u"&O8",  u"&HFF x", u"\u0661", u"nan", u"inf", u"0x10"}) {
        CHECK(raised([&] { return to_double(text); }) == 13);
    }
    CHECK(raised([] { return to_double(u"1E400"); }) == 6);
    CHECK(raised([] { return to_double(u"&H100000000"); }) == 6);
}

TEST_CASE("whether a value is a number") {
    for (const Variant& value : std::vector<Variant>{1, 1.5, Currency{1}, true, Empty{}, u"&H1F", u"$1,000", u" (5) ",
                                                     u"1E5", u"+7", u"1,234.5,6", u"&HFFFFFFFF&"}) {
        CHECK(is_numeric(value));
    }
    for (const Variant& value :
         std::vector<Variant>{Date{1}, u"", u"abc", u"1/2/2003", u"1E400", u"1E", u"(1", u"&H", u"&HG", u"&H100000000",
                              Null{}, Missing{}, ErrorValue{2007}, Object(), Array::list({1})}) {
        CHECK_FALSE(is_numeric(value));
    }
}

TEST_CASE("numbers read and show with the country's signs") {
    const test::Country country(test::german_locale());
    CHECK(to_double(u"1.234,5") == 1234.5);
    CHECK(to_double(u"1,5 €") == 1.5);
    CHECK(raised([] { return to_double(u"$5"); }) == 13);
    CHECK((to_text(1.5) == u"1,5"));
    CHECK((to_text(Currency{12345}) == u"1,2345"));
    CHECK((to_text(1e-7) == u"1E-07"));
    Locale french = english_locale();
    french.decimal_point = u',';
    french.thousands_separator = u'\u202F';
    const test::Country other(french);
    CHECK(to_double(u"1\u00A0234,5") == 1234.5);
}

TEST_CASE("text of a date is that date") {
    const test::Country country(english_locale());
    CHECK(to_date(u"3/15/2004").serial == 38061);
    CHECK(to_date(u"March 15, 2004 6 PM").serial == 38061.75);
    CHECK(to_date(u"12:00").serial == 0.5);
    CHECK(to_date(u"38061").serial == 38061);
    CHECK(to_date(u"38061.25").serial == 38061.25);
    CHECK(raised([] { return to_date(u"2/30/2004"); }) == 13);
    CHECK(raised([] { return to_date(u"2958466"); }) == 6);
    CHECK(raised([] { return to_double(u"3/15/2004"); }) == 13);
}

TEST_CASE("what is no value raises the run time's numbers") {
    CHECK(raised([] { return to_double(Null{}); }) == 94);
    CHECK(raised([] { return to_text(Null{}); }) == 94);
    CHECK(raised([] { return to_boolean(Null{}); }) == 94);
    CHECK(raised([] { return to_double(Missing{}); }) == 449);
    CHECK(raised([] { return to_double(ErrorValue{2007}); }) == 13);
    CHECK(raised([] { return to_long(ErrorValue{2042}); }) == 13);
    CHECK(raised([] { return to_double(Array::list({1, 2})); }) == 13);
    CHECK(raised([] { return to_text(Array::list({1, 2})); }) == 13);
    CHECK(raised([] { return to_double(Object()); }) == 91);
    CHECK(raised([] { return to_text(make_object<Thing>()); }) == 438);
}

TEST_CASE("an object is an object, though it may be Nothing") {
    const Object thing = make_object<Thing>();
    CHECK(to_object(thing).is(thing));
    CHECK_FALSE(to_object(Object()));
    CHECK(raised([] { return to_object(1); }) == 424);
    CHECK(raised([] { return to_object(Missing{}); }) == 449);
}

TEST_CASE("whole numbers round half to even and stay in range") {
    CHECK(to_long(2.5) == 2);
    CHECK(to_long(3.5) == 4);
    CHECK(to_long(-2.5) == -2);
    CHECK(to_long(u"0.5") == 0);
    CHECK(to_long(true) == -1);
    CHECK(to_long(2147483647.4) == 2147483647);
    CHECK(to_long(-2147483648.5) == std::numeric_limits<std::int32_t>::min());
    CHECK(raised([] { return to_long(2147483647.5); }) == 6);
    CHECK(raised([] { return to_long(-2147483649.0); }) == 6);
    CHECK(raised([] { return to_long(infinity); }) == 6);
    CHECK(raised([] { return to_long(no_number); }) == 6);
    CHECK(to_integer(32767.49) == 32767);
    CHECK(to_integer(-32768.5) == -32768);
    CHECK(raised([] { return to_integer(32767.5); }) == 6);
    CHECK(raised([] { return to_integer(40000); }) == 6);
    CHECK(to_integer(40.0F) == 40);
}

TEST_CASE("singles narrow and overflow") {
    CHECK(to_single(0.1) == 0.1F);
    CHECK(to_single(u"2.5") == 2.5F);
    CHECK(raised([] { return to_single(1e39); }) == 6);
    CHECK(to_single(1e-60) == 0.0F);
}

TEST_CASE("money keeps four decimal places, half to even") {
    CHECK(to_currency(1.5).ten_thousandths == 15000);
    CHECK(to_currency(std::int16_t{-2}).ten_thousandths == -20000);
    CHECK(to_currency(0.00005).ten_thousandths == 1);  // the double lies a little above the tie
    CHECK(to_currency(0.03125).ten_thousandths == 312);
    CHECK(to_currency(u"0.00005").ten_thousandths == 0);
    CHECK(to_currency(u"0.00015").ten_thousandths == 2);
    CHECK(to_currency(u"0.000050001").ten_thousandths == 1);
    CHECK(to_currency(u"-12.34567").ten_thousandths == -123457);
    CHECK(to_currency(u"1E-9").ten_thousandths == 0);
    CHECK(to_currency(u"25E3").ten_thousandths == 250000000);
    CHECK(to_currency(u"&H10").ten_thousandths == 160000);
    CHECK(to_currency(u"922,337,203,685,477.5807").ten_thousandths == std::numeric_limits<std::int64_t>::max());
    CHECK(to_currency(u"-922337203685477.5808").ten_thousandths == std::numeric_limits<std::int64_t>::min());
    CHECK(raised([] { return to_currency(u"922337203685477.58075"); }) == 6);
    CHECK(raised([] { return to_currency(u"1E999"); }) == 6);
    CHECK(raised([] { return to_currency(1e15); }) == 6);
    CHECK(raised([] { return to_currency(no_number); }) == 6);
}

TEST_CASE("dates lie in the calendar") {
    CHECK(to_date(38061).serial == 38061);
    CHECK(to_date(u"38061.5").serial == 38061.5);
    CHECK(to_date(-657434.5).serial == -657434.5);
    CHECK(to_date(2958465.5).serial == 2958465.5);
    CHECK(raised([] { return to_date(2958466); }) == 6);
    CHECK(raised([] { return to_date(-657435); }) == 6);
    CHECK(raised([] { return to_date(no_number); }) == 6);
    CHECK(raised([] { return to_date(u"tomorrow"); }) == 13);
}

TEST_CASE("anything but 0 is true") {
    CHECK(to_boolean(true));
    CHECK_FALSE(to_boolean(Empty{}));
    CHECK(to_boolean(0.001));
    CHECK_FALSE(to_boolean(-0.0));
    CHECK(to_boolean(u"-1"));
    CHECK_FALSE(to_boolean(u"0"));
    CHECK(to_boolean(u"tRUE"));
    CHECK_FALSE(to_boolean(u"False"));
    CHECK(raised([] { return to_boolean(u"yes"); }) == 13);
    CHECK(raised([] { return to_boolean(u""); }) == 13);
}

TEST_CASE("numbers show in the shortest form of their significant digits") {
    struct Row {
        Variant value;
        std::u16string_view text;
    };
    for (const auto& [value, text] : std::vector<Row>{
             {Empty{}, u""},
             {true, u"True"},
             {false, u"False"},
             {std::int16_t{-5}, u"-5"},
             {123456789, u"123456789"},
             {0.0, u"0"},
             {-0.0, u"0"},
             {1.0, u"1"},
             {-1.5, u"-1.5"},
             {0.1, u"0.1"},
             {0.1 + 0.2, u"0.3"},
             {1.0 / 3, u"0.333333333333333"},
             {2.0 / 3, u"0.666666666666667"},
             {100.0 / 3, u"33.3333333333333"},
             {0.0001, u"0.0001"},
             {0.00001, u"1E-05"},
             {1.0 / 30000, u"3.33333333333333E-05"},
             {1e14, u"100000000000000"},
             {999999999999999.0, u"999999999999999"},
             {999999999999999.9, u"1E+15"},
             {1e15, u"1E+15"},
             {-1.25e20, u"-1.25E+20"},
             {1.7976931348623157e308, u"1.79769313486232E+308"},
             {4.9406564584124654e-324, u"4.94065645841247E-324"},
             {1234500.0, u"1234500"},
             {0.1F, u"0.1"},
             {9999999.0F, u"9999999"},
             {1e7F, u"1E+07"},
             {1.0F / 3, u"0.3333333"},
             {Currency{12345}, u"1.2345"},
             {Currency{-500}, u"-0.05"},
             {Currency{70000}, u"7"},
             {Currency{std::numeric_limits<std::int64_t>::min()}, u"-922337203685477.5808"},
             {u"as it is ", u"as it is "},
             {ErrorValue{2007}, u"Error 2007"},
             {infinity, u"1.#INF"},
             {-infinity, u"-1.#INF"},
             {Date{38061}, u"3/15/2004"},
             {Date{38061.545138888889}, u"3/15/2004 1:05:00 PM"},
             {Date{0.5}, u"12:00:00 PM"},
             {Date{0.000011574074074}, u"12:00:01 AM"},
             {Date{0}, u"12/30/1899"},
         }) {
        CHECK((to_text(value) == text));
    }
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("a number's text reads as the number again") {
    CHECK(rc::check("whole numbers", [](std::int32_t number) {
        RC_ASSERT(to_long(to_text(number)) == number);
        RC_ASSERT(to_long(to_text(static_cast<double>(number))) == number);
    }));
    CHECK(rc::check("money", [](std::int64_t ten_thousandths) {
        RC_ASSERT(to_currency(to_text(Currency{ten_thousandths})).ten_thousandths == ten_thousandths);
    }));
    CHECK(rc::check("doubles to 15 digits", [](double number) {
        RC_ASSERT(std::abs(to_double(to_text(number)) - number) <= std::abs(number) * 5e-15);
    }));
}

TEST_CASE("no text at all makes a conversion leave the rules") {
    CHECK(rc::check([] {
        const auto text =
            *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789.,+-()EeDd&HhOo Ff")));
        const std::int32_t number = raised([&] { return to_double(std::u16string(text.begin(), text.end())); });
        RC_ASSERT(number == 0 || number == 13 || number == 6);
    }));
}
#endif
