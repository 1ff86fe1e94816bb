#include <doctest/doctest.h>

#include <cmath>

#include "tests/functions/call.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::call;

TEST_CASE("continuous compounding gives the growth factor, for a year unless told") {
    CHECK(call(u"CCR", {0.1}) == 1.1052);
    CHECK(call(u"CCR", {0.05}) == 1.0513);
    CHECK(call(u"CCR", {0.05, Missing{}}) == 1.0513);
    CHECK(call(u"CCR", {0.05, 2}) == 1.1052);
    CHECK(call(u"CCR", {0, 30}) == 1);
    CHECK(call(u"CCR", {-0.1}) == 0.9048);
    CHECK(call(u"CCR", {1, 1, 0}) == 3);
    CHECK(call(u"CCR", {1, 1, -1}) == 0);
    CHECK(call(u"CCR", {1000}) == 0);  // too large for a double
}

TEST_CASE("the effective rate needs a frequency") {
    CHECK(call(u"EAIR", {0.12, 12}) == 0.1268);
    CHECK(call(u"EAIR", {0.12, 1}) == 0.12);
    CHECK(call(u"EAIR", {0.12, 0}) == 0);
    CHECK(call(u"EAIR", {-1, 0.5}) == 0);  // no square root of -1
    CHECK(call(u"EAIR", {-1, 1}) == -1);
    CHECK(call(u"EAIR", {1, -1}) == 0);  // 0 has no negative power
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("nominal and real rates undo each other") {
    CHECK(call(u"NIR", {0.25, 0.5}) == 0.875);
    CHECK(call(u"RIR", {0.875, 0.5}) == 0.25);
    CHECK(call(u"RIR", {0.08, -1}) == 0);
    CHECK(call(u"NIR", {-1, 0.5}) == -1);
    CHECK(rc::check([] {
        const double real = *rc::gen::inRange(-90, 200) / 100.0;
        const double inflation = *rc::gen::inRange(-90, 200) / 100.0;
        const double nominal = call(u"NIR", {real, inflation, 10});
        RC_ASSERT(std::abs(call(u"RIR", {nominal, inflation, 10}) - real) < 1e-8);
    }));
}
#endif

TEST_CASE("the trade credit rate is a year's, and its days are whole") {
    CHECK(call(u"TCR", {0.02, 10, 30, 360}) == 0.36);
    CHECK(call(u"TCR", {0.02, 30, 10, 360}) == -0.36);
    CHECK(call(u"TCR", {0.02, 30, 30, 360}) == 0);
    CHECK(call(u"TCR", {0.02, 10, 30, 0}) == 0);
    CHECK(call(u"TCR", {0.02, 10, 30, 360.5}) == 0.36);  // a tie goes to the even number
    CHECK(find_function(u"TCR")->parameters[3].kind == ValueKind::whole_number);
    CHECK(test::raised([] { find_function(u"TCR")->invoke({0.02, 10, 30, 3e9}); }) == 6);
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("a growing annuity is worth its payments discounted one by one") {
    // 100 / 1.25 + 150 / 1.25 ^ 2
    CHECK(call(u"PVGA", {100, 0.25, 0.5, 2}) == 176);
    CHECK(call(u"PVGA", {100, 0.25, 0.5, 0}) == 0);
    CHECK(call(u"PVGA", {100, 0.25, 0.25, 2}) == 0);
    CHECK(call(u"PVGA", {100, -1, 0.25, 2}) == 0);
    CHECK(call(u"PVGA", {100, 0.25, -1, -2}) == 0);
    CHECK(call(u"PVGA", {100, 0.25, -3, 0.5}) == 0);
    CHECK(rc::check([] {
        const double rate = *rc::gen::inRange(11, 30) / 100.0;
        const double growth = *rc::gen::inRange(0, 10) / 100.0;
        const int payments = *rc::gen::inRange(1, 40);
        double worth = 0;
        for (int payment = 1; payment <= payments; ++payment) {
            worth += 100 * std::pow(1 + growth, payment - 1) / std::pow(1 + rate, payment);
        }
        RC_ASSERT(std::abs(call(u"PVGA", {100, rate, growth, payments, 8}) - worth) < 1e-6);
    }));
}
#endif

TEST_CASE("a perpetuity needs a rate above its growth") {
    CHECK(call(u"PERP", {50, 0}) == 0);
    CHECK(call(u"PERP", {50, -0.1}) == -500);
    CHECK(call(u"PVGP", {100, 0.06, 0.06}) == 0);
    CHECK(call(u"PVGP", {100, 0.25, 0.5}) == -400);
}
