#include <doctest/doctest.h>

#include <cmath>
#include <limits>

#include "platform/text.hpp"
#include "runtime/rounding.hpp"
#include "tests/functions/call.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("the family is complete") {
    for (const std::u16string_view name :
         {u"ARA",  u"ARE",  u"ARNS",   u"AGNS",   u"BDAR",  u"BDNS", u"CLE",    u"CLNS",   u"DCA", u"DCE",  u"DCNS",
          u"DNS",  u"EA",   u"FBR",    u"IA",     u"IE",    u"IENS", u"INS",    u"LA",     u"LE",  u"LTNS", u"MNS",
          u"NFAA", u"NFAE", u"NFALTL", u"NFANS",  u"NIAA",  u"NIAE", u"NIANS",  u"OAA",    u"OAE", u"OANS", u"OSNS",
          u"REA",  u"RDNS", u"RNTLNS", u"RPRNFA", u"RPRNS", u"SBNS", u"TRNGNS", u"WRNTYNS"}) {
        CAPTURE(to_utf8(name));
        REQUIRE(find_function(name) != nullptr);
        CHECK(find_function(name)->category == Category::financial);
    }
}

TEST_CASE("a denominator of 0 gives 0 and no error value") {
    CHECK(call(u"ARA", {1, 0}) == 0);
    CHECK(call(u"ARA", {0, 0}) == 0);
    CHECK(call(u"ARNS", {100, 300, 0}) == 0);
    CHECK(call(u"BDAR", {10, 100, -100}) == 0);
    CHECK(call(u"BDAR", {10, 0, 0}) == 0);
    CHECK(call(u"RPRNFA", {10, 50, -50}) == 0);
}

TEST_CASE("the result is rounded to lDecPlace with ties to the even digit") {
    CHECK(call(u"ARA", {1, 3}) == 0.3333);
    CHECK(call(u"ARA", {1, 3, 0}) == 0);
    CHECK(call(u"ARA", {5, 2, 0}) == 2);
    CHECK(call(u"ARA", {7, 2, 0}) == 4);
    CHECK(call(u"ARA", {1, 3, -1}) == 0);
    CHECK(call(u"ARA", {1, 3, 17}) == 0.33333333333333331);
    CHECK(call(u"ARA", {1, 3, 400}) == 1.0 / 3);
    CHECK(call(u"ARA", {1, 32, 4}) == 0.0312);
    CHECK(call(u"ARA", {3, 32, 4}) == 0.0938);
}

TEST_CASE("a balance against a flow is the average of the period") {
    CHECK(call(u"BDAR", {10, 100, 300}) == 0.05);
    CHECK(call(u"BDAR", {10, 300, 100}) == 0.05);
    CHECK(call(u"RPRNFA", {10, 100, 300}) == 0.05);
    CHECK(call(u"RPRNS", {10, 200}) == 0.05);
    CHECK(call(u"ARNS", {100, -100, 5}) == 0);
}

TEST_CASE("a sum too large for a double keeps what was added before") {
    constexpr double largest = std::numeric_limits<double>::max();
    CHECK(call(u"ARNS", {largest, largest, largest}) == 0.5);
    CHECK(call(u"ARNS", {largest, 0, 0.1}) == 0);
}

TEST_CASE("parameters bear the names of the interface") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"ARNS") == Names{u"dBgAR", u"dEdAR", u"dNetSales", u"lDecPlace"}));
    CHECK((parameters_of(u"RPRNFA") == Names{u"dRprs", u"dBgNFA", u"dEdNFA", u"lDecPlace"}));
    CHECK((parameters_of(u"RPRNS") == Names{u"dRpr", u"dNetSales", u"lDecPlace"}));
    CHECK((parameters_of(u"FBR") == Names{u"dFrngs", u"dSW", u"lDecPlace"}));
    CHECK((parameters_of(u"REA") == Names{u"dRE", u"dAst", u"lDecPlace"}));
}

TEST_CASE("a description stands as it is registered") {
    CHECK((find_function(u"OAA")->description == u"Returns the Other Assests to Assets Ratio."));
    CHECK((find_function(u"FBR")->description == u"Returns the Fringe Benefit Rate."));
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("a quotient is the double quotient, rounded") {
    CHECK(rc::check([] {
        const auto dividend = *rc::gen::arbitrary<double>();
        const auto divisor = *rc::gen::arbitrary<double>();
        const auto places = *rc::gen::inRange(0, 20);
        const double quotient = dividend / divisor;
        const double expected = std::isfinite(quotient) ? round_half_even(quotient, places) : 0;
        RC_ASSERT(call(u"CLE", {dividend, divisor, places}) == expected);
    }));
}
#endif
