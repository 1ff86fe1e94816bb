#include <doctest/doctest.h>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;

TEST_CASE("an order quantity needs a positive radicand") {
    CHECK(call(u"EOQ", {1000, 10, 2}) == 100);
    CHECK(call(u"EOQ", {1000, 10, 0}) == 0);
    CHECK(call(u"EOQ", {1, 1, -1}) == 0);
    CHECK(call(u"EOQ", {0, 10, 2}) == 0);
    CHECK(call(u"EOQ", {-1000, 10, -2}) == 100);
    CHECK(call(u"EOQ", {1, 1, 1}) == 1.4142);  // not in whole units
    CHECK(call(u"EOQ", {1e200, 1e200, 1}) == 0);
}

TEST_CASE("the order quantity leads to orders, their costs, the holding costs and the sum") {
    const double quantity = call(u"EOQ", {1000, 10, 2});
    const double orders = call(u"EOQNO", {1000, quantity});
    const double ordering = call(u"EOQOC", {orders, 10});
    const double holding = call(u"EOQHC", {quantity, 2});
    CHECK(orders == 10);
    CHECK(ordering == 100);
    CHECK(holding == 100);  // at the best quantity as much as the ordering
    CHECK(call(u"EOQRC", {holding, ordering}) == 200);
    CHECK(call(u"EOQNO", {1000, 0}) == 0);
}

TEST_CASE("holding costs per unit are over the average quantity") {
    CHECK(call(u"EOQHCPU", {500, 300, 100, 8}) == 20);
    CHECK(call(u"EOQHCPU", {500, 100, -100, 8}) == 0);
    CHECK(call(u"EOQHCPU", {500, 0, 0, 8}) == 0);
}

TEST_CASE("the reorder point is the demand of the lead time above the safety stock") {
    CHECK(call(u"EOQRP", {20, 0, 30}) == 30);
    CHECK(call(u"EOQRP", {30, 5, 20}) == 170);
}

TEST_CASE("the square-root model of the cash balance") {
    CHECK(call(u"OTCBB", {10, 1000, 0.05}) == 632.4555);
    CHECK(call(u"OTCBB", {10, 1000, 0}) == 0);
    CHECK(call(u"OTCBB", {10, 1000, -0.05}) == 0);
}

TEST_CASE("the cube-root model of the cash balance takes a rate by the day") {
    CHECK(call(u"OTCBMO", {10, 100, 0.1, 5}) == 147.141);
    CHECK(call(u"OTCBMO", {10, 100, 0.1, 0}) == 142.141);
    CHECK(call(u"OTCBMO", {10, 0, 0.1, 5}) == 5);
    CHECK(call(u"OTCBMO", {10, 100, 0, 5}) == 0);     // a daily rate of 0
    CHECK(call(u"OTCBMO", {10, 100, -2, 5}) == 0);    // no 365th root
    CHECK(call(u"OTCBMO", {10, 100, -0.1, 5}) == 0);  // no cube root of a negative radicand
    CHECK(call(u"OTCBMO", {10, -100, 0.1, 5}) == 0);
    // At a rate of -1 the daily rate is -1 too: the radicand is -270, and 270 for a negative variance.
    CHECK(call(u"OTCBMO", {10, 36, -1, 5}) == 0);
    CHECK(call(u"OTCBMO", {10, -36, -1, 5}) == 11.4633);
}
