#include <doctest/doctest.h>

#include "tests/functions/call.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("the growth rate needs years and a sign that stays") {
    CHECK(call(u"CAGR", {200, 100, 1}) == 1);
    CHECK(call(u"CAGR", {100, 200, 1}) == -0.5);
    CHECK(call(u"CAGR", {100, 200, 0}) == 0);
    CHECK(call(u"CAGR", {100, 0, 2}) == 0);
    CHECK(call(u"CAGR", {-100, 200, 2}) == 0);   // no square root
    CHECK(call(u"CAGR", {-200, 100, 1}) == -3);  // a negative base has whole powers
    CHECK(call(u"CAGR", {0, 100, 2}) == -1);     // everything is lost
    CHECK(call(u"CAGR", {0, 100, -2}) == 0);     // 0 has no negative power
    CHECK(call(u"CAGR", {1e300, 1, 0.5}) == 0);  // too large for a double
    CHECK(call(u"CAGR", {400, 100, -2}) == -0.5);
}

TEST_CASE("the accounting rates differ in their divisor alone") {
    CHECK(call(u"ARR", {1000, 200, 4, 500, 0}) == 0.3);
    CHECK(call(u"AARR", {1000, 200, 4, 500, 0}) == 0.6);
    CHECK(call(u"ARR", {1000, 200, 4, 325, 0, 2}) == 0.12);  // the tie 0.125 goes to the even digit
    CHECK(call(u"AARR", {1000, 200, 4, 325, 0, 1}) == 0.2);  // and so does 0.25
    CHECK((parameters_of(u"ARR")[3] == u"dEBD"));
    CHECK((parameters_of(u"AARR")[3] == u"dAvgEBD"));
    for (const auto* name : {u"ARR", u"AARR"}) {
        CHECK(call(name, {1000, 200, 0, 500}) == 0);     // no life
        CHECK(call(name, {0, 0, 4, 500}) == 0);          // no cost
        CHECK(call(name, {1000, 200, 4, 500, 1}) == 0);  // all of it is taxed away
        CHECK(find_function(name)->parameters[4].is_optional());
    }
}

TEST_CASE("a tax of the whole leaves nothing that pays back") {
    CHECK(call(u"PP", {1000, 400, 1}) == 0);
    CHECK(call(u"PP", {1000, 400, 1.5}) == -5);
    CHECK(call(u"PP", {1000, 0}) == 0);
    CHECK(call(u"ROCC", {130, 100, 40, 1}) == 0);
    CHECK(call(u"ROCC", {130, 100, 0}) == 0);
    CHECK(call(u"ROCC", {100, 130, 40}) == -0.75);
}

TEST_CASE("the taxable equivalent yield has always four places") {
    CHECK(call(u"TEY", {0.05, 0.3, 0.1}) == 0.0794);
    for (const std::int32_t places : {-1, 0, 2, 9}) CHECK(call(u"TEY", {0.05, 0.3, 0.1, places}) == 0.0794);
    CHECK((parameters_of(u"TEY").back() == u"lDecPlace"));
    CHECK(test::raised([] { find_function(u"TEY")->invoke({0.05, 0.3, 0.1, u"two"}); }) == 13);
    CHECK(call(u"TEY", {0.05, 1, 0}) == 0);
    CHECK(call(u"TEY", {0.05, 0, 1}) == 0);
}

TEST_CASE("the return on a warrant is over the average of its two prices") {
    CHECK(call(u"ROWarrant", {10, 30, 2}) == -0.5);
    CHECK(call(u"ROWARRANT", {30, 10, 1}) == 1);
    CHECK(call(u"ROWarrant", {30, 10, 0}) == 0);
    CHECK(call(u"ROWarrant", {30, -30, 2}) == 0);
    CHECK(call(u"ROWarrant", {0, 0, 2}) == 0);
}

TEST_CASE("a return over nothing is 0") {
    CHECK(call(u"CCS", {3, 0, 0.05}) == 0);
    CHECK(call(u"HPR", {5, 15, 0}) == 0);
    CHECK(call(u"MM", {0, 300}) == 0);
    CHECK(call(u"ROM", {50, 20, 1200, 1000, 0}) == 0);
    CHECK(call(u"ROSS", {1000, 800, 50, 0}) == 0);
    CHECK(call(u"SHARPE", {0.12, 0.03, 0}) == 0);
}

TEST_CASE("losses are negative returns") {
    CHECK(call(u"HPR", {5, -15, 80}) == -0.125);
    CHECK(call(u"MM", {500, 750}) == -0.5);
    CHECK(call(u"CAPM", {0.04, -1, 0.1}) == -0.02);
    CHECK(call(u"SHARPE", {0.01, 0.03, 0.2}) == -0.1);
    CHECK(call(u"ROSS", {800, 1000, 50, 500}) == -0.5);
}
