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

TEST_CASE("a turnover over an average of 0 is 0") {
    for (const std::u16string_view name : {u"APT", u"ART", u"AT", u"IT", u"NFAT", u"NSNE"}) {
        CHECK(call(name, {300, 40, 80}) == 5);
        CHECK(call(name, {100, 50, -50}) == 0);
        CHECK(call(name, {100, 0, 0}) == 0);
        CHECK(call(name, {0, 0, 0}) == 0);
        CHECK(call(name, {5, 1, 3, 0}) == 2);
        CHECK(call(name, {5, 1, 3, -1}) == 0);
    }
}

TEST_CASE("the days in receivables always have four places, those in payables and inventory lDecPlace") {
    CHECK(call(u"DAR", {365, 7.3, 2}) == 50);
    CHECK(call(u"DAR", {10, 3, 0}) == 3.3333);
    CHECK(call(u"DAR", {10, 3, -1}) == 3.3333);
    for (const std::u16string_view name : {u"DAP", u"DI"}) {
        CHECK(call(name, {10, 3}) == 3.3333);
        CHECK(call(name, {10, 3, 0}) == 3);
        CHECK(call(name, {10, 3, 2}) == 3.33);
        CHECK(call(name, {10, 3, -1}) == 0);
    }
}

TEST_CASE("the days in a period are a whole number") {
    for (const std::u16string_view name : {u"DAP", u"DAR", u"DI"}) {
        CHECK(call(name, {u"365", 73}) == 5);
        CHECK(call(name, {364.5, 1}) == 364);
        CHECK(call(name, {365.5, 1}) == 366);
        CHECK(call(name, {2147483647, 0.5}) == 4294967294.0);
        CHECK(call(name, {365, 0}) == 0);
        CHECK(call(name, {0, 0}) == 0);
        CHECK(call(name, {365, 1e-308}) == 0);
        CHECK(raised([&] { call(name, {3e9, 1}); }) == 6);
    }
}

TEST_CASE("the days in receivables are a member under a spelling of their own") {
    REQUIRE(find_function(u"dAR") != nullptr);
    CHECK((find_function(u"dAR")->name == u"DAR"));
    CHECK((find_function(u"dAR")->member == u"dAR"));
}

TEST_CASE("sums and differences have no denominator") {
    CHECK(call(u"CCC", {1.5, 2.5}) == 4);
    CHECK(call(u"CCC", {0, 0}) == 0);
    CHECK(call(u"CCC", {-1.25, 0.5, 1}) == -0.8);
    CHECK(call(u"CCC", {largest, largest}) == 0);
    CHECK(call(u"WCapital", {120, 300}) == -180);
    CHECK(call(u"WCapital", {largest, -largest}) == 0);
    CHECK(call(u"NW", {-largest, largest}) == 0);
}

TEST_CASE("the days of working capital are summed before those in payables are taken off") {
    CHECK(call(u"DWCap", {1e16, 1, 1e16}) == 0);
    CHECK(call(u"DWCap", {largest, largest, largest}) == 0);
    CHECK(call(u"DWCap", {10, 20, 35}) == -5);
}

TEST_CASE("a ratio over no liabilities or no shares is 0") {
    CHECK(call(u"CACL", {300, 0}) == 0);
    CHECK(call(u"CALICL", {300, 60, 0}) == 0);
    CHECK(call(u"CALICL", {300, 300, 0}) == 0);
    CHECK(call(u"CALICL", {60, 300, 120}) == -2);
    CHECK(call(u"NSPS", {1000, 0}) == 0);
}

TEST_CASE("the parameters of turnover and liquidity bear the names of the interface") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"APT") == Names{u"dPrch", u"dBgAP", u"dEdAP", u"lDecPlace"}));
    CHECK((parameters_of(u"DAR") == Names{u"lDaysInPrd", u"dART", u"lDecPlace"}));
    CHECK((parameters_of(u"DWCap") == Names{u"dDI", u"dDAR", u"dDAP", u"lDecPlace"}));
    CHECK((parameters_of(u"NSNE") == Names{u"dNetSales", u"dBgEmply", u"dEdEmply", u"lDecPlace"}));
    CHECK((parameters_of(u"NSPS") == Names{u"dNetSales", u"dWghtdOtstndngShrs", u"lDecPlace"}));
}
