#include <doctest/doctest.h>

#include <limits>

#include "tests/functions/call.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::call;
using test::parameters_of;
using test::raised;

namespace {
constexpr double largest = std::numeric_limits<double>::max();
}

TEST_CASE("earnings before interest, taxes, depreciation and amortization are not rounded") {
    CHECK(call(u"EBITDA", {1, 2, 3.123456789}) == 3 + 3.123456789);
    CHECK((to_text(call(u"EBITDA", {1, 2, 3.123456789})) == u"6.123456789"));
    CHECK(raised([] { call(u"EBITDA", {1, 2, 3, 4}); }) == 450);
    CHECK((parameters_of(u"EBITDA") == std::vector<std::u16string_view>{u"dEBIT", u"dDepr", u"dAmort"}));
}

TEST_CASE("earnings are summed from left to right") {
    CHECK(call(u"EBITDA", {1e16, 1, 1}) == 1e16);
    CHECK(call(u"EBITDA", {1, 1, 1e16}) == 1e16 + 2);
    CHECK(call(u"EBITDA", {largest, largest, -largest}) == 0);
    CHECK(call(u"EBITDA", {largest, -largest, largest}) == largest);
}

TEST_CASE("margins and returns have the earnings above") {
    CHECK((parameters_of(u"GPM") == std::vector<std::u16string_view>{u"dEBIT", u"dNetSales", u"lDecPlace"}));
    for (const std::u16string_view name : {u"GPM", u"NPM", u"IC"}) {
        CHECK(call(name, {1, 3}) == 0.3333);
        CHECK(call(name, {7, 2, 0}) == 4);
        CHECK(call(name, {1, 0}) == 0);
        CHECK(call(name, {0, 0}) == 0);
        CHECK(call(name, {1, 3, -1}) == 0);
    }
    for (const std::u16string_view name : {u"GROA", u"GROE"}) {
        CHECK(call(name, {10, 100, 300}) == 0.05);
        CHECK(call(name, {10, 100, -100}) == 0);
        CHECK(call(name, {10, 0, 0}) == 0);
    }
}

TEST_CASE("the return on assets and the return on investment are one product") {
    for (const std::u16string_view name : {u"ROA", u"ROI"}) {
        CHECK(call(name, {0.125, 3}) == 0.375);
        CHECK(call(name, {0.125, 0.25}) == 0.0312);
        CHECK(call(name, {0.375, 0.25}) == 0.0938);
        CHECK(call(name, {1e200, 1e200}) == 0);
        CHECK((parameters_of(name) == std::vector<std::u16string_view>{u"dNPM", u"dAT", u"lDecPlace"}));
    }
    CHECK(find_function(u"ROA")->description != find_function(u"ROI")->description);
}

TEST_CASE("the return on equity multiplies from left to right") {
    CHECK(call(u"ROE", {0.5, 3, 7}) == 10.5);
    CHECK(call(u"ROE", {1e200, 1e200, 1e-200}) == 0);
    CHECK(call(u"ROE", {1e200, 1e-200, 1e200}) == doctest::Approx(1e200));
    CHECK(call(u"ROE", {1e-200, 1e200, 1e200}) == doctest::Approx(1e200));
}

TEST_CASE("the equity multiplier is an average over an average") {
    CHECK(call(u"EM", {1, 2, 3, 4}) == 0.4286);
    CHECK(call(u"EM", {100, -100, 3, 4}) == 0);
    CHECK(call(u"EM", {1, 2, 100, -100}) == 0);
    CHECK(call(u"EM", {0, 0, 0, 0}) == 0);
}
