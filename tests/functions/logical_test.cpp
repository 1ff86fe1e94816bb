#include <doctest/doctest.h>

#include "functions/between.hpp"
#include "tests/functions/call.hpp"
#include "tests/runtime/country.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::Country;
using test::parameters_of;
using test::TimeStopped;

namespace {

bool truth(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = test::result_of(name, std::move(arguments));
    REQUIRE(result.is(Variant::Kind::boolean));
    return *result.get_if<bool>();
}

}  // namespace

TEST_CASE("the parameters of the logical functions have their names, order and defaults") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"BETWEEN") == Names{u"vTestValue", u"vLowValue", u"vHighValue"}));
    CHECK((parameters_of(u"CONTAINS") == Names{u"sString", u"sSearch4", u"lStart", u"lLength", u"bCaseSens"}));
    CHECK((parameters_of(u"ISDATE") == Names{u"vDt"}));
    CHECK((parameters_of(u"ISLEAPYEAR") == Names{u"lYYYY"}));
    CHECK((parameters_of(u"ISLIKE") == Names{u"sString", u"sPattern"}));
    CHECK((parameters_of(u"ISTIME") == Names{u"vTime"}));
    const auto& parameters = find_function(u"CONTAINS")->parameters;
    CHECK_FALSE(parameters[1].is_optional());
    CHECK(to_long(*parameters[2].default_value) == 1);
    CHECK(parameters[3].default_value->is_missing());
    CHECK_FALSE(to_boolean(*parameters[4].default_value));
}

TEST_CASE("a value between two others is neither of them") {
    CHECK(truth(u"BETWEEN", {5, 4, 10}));
    CHECK_FALSE(truth(u"BETWEEN", {5, 5, 10}));
    CHECK_FALSE(truth(u"BETWEEN", {10, 5, 10}));
    CHECK_FALSE(truth(u"BETWEEN", {5, 10, 4}));
    for (std::int32_t code = -1; code <= 9; ++code) CHECK(truth(u"BETWEEN", {code, 0, 8}) == (code >= 1 && code <= 7));
    CHECK(truth(u"BETWEEN", {Date{38061}, 38060.5, Date{38062}}));
    CHECK(truth(u"BETWEEN", {true, -2, Empty{}}));
    CHECK(truth(u"BETWEEN", {Empty{}, -1, 1}));
}

TEST_CASE("texts lie between texts by their characters, and behind all numbers") {
    CHECK(truth(u"BETWEEN", {u"10", u"1", u"9"}));
    CHECK_FALSE(truth(u"BETWEEN", {u"B", u"a", u"c"}));
    CHECK(truth(u"BETWEEN", {u"a", 5, u"b"}));
    CHECK_FALSE(truth(u"BETWEEN", {u"5", 4, 10}));
    CHECK_FALSE(truth(u"BETWEEN", {5, u"4", u"10"}));
    CHECK(truth(u"BETWEEN", {5, 4, u"10"}));
}

TEST_CASE("what cannot be compared lies between nothing") {
    CHECK_FALSE(truth(u"BETWEEN", {Null{}, 1, 2}));
    CHECK_FALSE(truth(u"BETWEEN", {5, Null{}, 10}));
    CHECK_FALSE(truth(u"BETWEEN", {5, 4, Null{}}));
    CHECK_FALSE(truth(u"BETWEEN", {ErrorValue{2042}, 1, 2}));
    CHECK_FALSE(truth(u"BETWEEN", {5, 4, Object()}));
    CHECK(test::raised([] { between(5, 4, ErrorValue{2042}); }) == 13);
    CHECK(test::raised([] { test::result_of(u"BETWEEN", {5, 4}); }) == 449);
}

TEST_CASE("a text is found in a part of another") {
    CHECK(truth(u"CONTAINS", {u"abc", u"B"}));
    CHECK_FALSE(truth(u"CONTAINS", {u"abc", u"B", 1, Missing{}, true}));
    CHECK(truth(u"CONTAINS", {u"abc", u"b", 1, Missing{}, true}));
    CHECK_FALSE(truth(u"CONTAINS", {u"abcdef", u"e", 2, 2}));
    CHECK(truth(u"CONTAINS", {u"abcdef", u"c", 2, 2}));
    CHECK(truth(u"CONTAINS", {u"abcdef", u"EF", 2, 99}));
    for (const std::int32_t to_the_end : {0, -1, -2147483647}) {
        CHECK(truth(u"CONTAINS", {u"abcdef", u"f", 2, to_the_end}));
    }
    CHECK_FALSE(truth(u"CONTAINS", {u"abcdef", u"a", 2}));
    CHECK(truth(u"CONTAINS", {u"abcdef", u"f", 6}));
    CHECK(truth(u"CONTAINS", {u"ÄRGER", u"är"}));
    CHECK(truth(u"CONTAINS", {1250, 25}));
    CHECK_FALSE(truth(u"CONTAINS", {u"ab", u"abc"}));
}

TEST_CASE("outside of a text there is nothing, not even an empty text") {
    for (const std::int32_t start : {0, -1, 4, 5, 2147483647, -2147483647}) {
        CAPTURE(start);
        CHECK_FALSE(truth(u"CONTAINS", {u"abc", u"a", start}));
        CHECK_FALSE(truth(u"CONTAINS", {u"abc", u"", start}));
        CHECK_FALSE(truth(u"CONTAINS", {u"abc", u"", start, 2, true}));
    }
    CHECK(truth(u"CONTAINS", {u"abc", u""}));
    CHECK(truth(u"CONTAINS", {u"abc", u"", 3, 1, true}));
    CHECK_FALSE(truth(u"CONTAINS", {u"", u""}));
    CHECK_FALSE(truth(u"CONTAINS", {Empty{}, u"a"}));
}

TEST_CASE("dates and the texts of dates are dates, numbers are none") {
    const Country american(english_locale());
    CHECK(truth(u"ISDATE", {Date{0}}));
    CHECK(truth(u"ISDATE", {u"March 15, 2004"}));
    CHECK(truth(u"ISDATE", {u"15/3/2004"}));  // no fifteenth month: the other order is tried
    CHECK(truth(u"ISDATE", {u"2/29/2004 1:05 PM"}));
    CHECK_FALSE(truth(u"ISDATE", {u"13/13/2003"}));
    CHECK_FALSE(truth(u"ISDATE", {u"2/29/2003"}));
    CHECK_FALSE(truth(u"ISDATE", {u""}));
    CHECK_FALSE(truth(u"ISDATE", {38061}));
    CHECK_FALSE(truth(u"ISDATE", {Empty{}}));
    CHECK_FALSE(truth(u"ISDATE", {Null{}}));
    CHECK_FALSE(truth(u"ISDATE", {ErrorValue{2036}}));
}

TEST_CASE("a leap year has a 29 February") {
    for (const std::int32_t leap : {2000, 2004, 1996, 400, 9996}) CHECK(truth(u"ISLEAPYEAR", {leap}));
    for (const std::int32_t common : {1900, 2003, 2100, 100, 9999, 10000, -2004}) {
        CAPTURE(common);
        CHECK_FALSE(truth(u"ISLEAPYEAR", {common}));
    }
    CHECK(truth(u"ISLEAPYEAR", {u"2004"}));
    CHECK(truth(u"ISLEAPYEAR", {96}));  // 1996
    CHECK(test::raised([] { test::result_of(u"ISLEAPYEAR", {u"leap"}); }) == 13);
    const Country german(test::german_locale());
    CHECK(truth(u"ISLEAPYEAR", {2000}));
    CHECK_FALSE(truth(u"ISLEAPYEAR", {1900}));
}

TEST_CASE("texts are alike by pattern and case") {
    CHECK(truth(u"ISLIKE", {u"report.xls", u"*.xls"}));
    CHECK(truth(u"ISLIKE", {u"abc", u"a?c"}));
    CHECK(truth(u"ISLIKE", {u"a5", u"[a-c]#"}));
    CHECK(truth(u"ISLIKE", {u"x5", u"[!a-c]#"}));
    CHECK_FALSE(truth(u"ISLIKE", {u"b5", u"[!a-c]#"}));
    CHECK_FALSE(truth(u"ISLIKE", {u"ABC", u"a*"}));
    CHECK(truth(u"ISLIKE", {u"", u"*"}));
    CHECK_FALSE(truth(u"ISLIKE", {u"", u"?"}));
    CHECK_FALSE(truth(u"ISLIKE", {u"[", u"["}));  // a set that is not closed
    CHECK(truth(u"ISLIKE", {u"[", u"[[]"}));
}

TEST_CASE("a time is what makes today's date a date and time") {
    for (const Locale& country : {english_locale(), test::german_locale()}) {
        const Country chosen(country);
        const TimeStopped in_march(Date{38061.6});
        for (const auto* time : {u"12:30", u"0:00", u"23:59:59", u" 7:05 ", u"7 PM"}) {
            CAPTURE(time);
            CHECK(truth(u"ISTIME", {time}));
        }
        for (const auto* none : {u"", u"   ", u"25:00", u"12:60", u"noon", u"3/15/2004"}) {
            CAPTURE(none);
            CHECK_FALSE(truth(u"ISTIME", {none}));
        }
        CHECK(truth(u"ISTIME", {Date{0.5}}));
        CHECK_FALSE(truth(u"ISTIME", {Date{38061.5}}));  // a date of its own
        CHECK_FALSE(truth(u"ISTIME", {Empty{}}));
        CHECK_FALSE(truth(u"ISTIME", {Null{}}));
        CHECK_FALSE(truth(u"ISTIME", {ErrorValue{2036}}));
    }
}
