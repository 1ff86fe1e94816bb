#include <doctest/doctest.h>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;

TEST_CASE("each doubling of the units leaves the index's share of the time") {
    CHECK(call(u"LR", {1, 10, 0.8}) == 10);
    CHECK(call(u"LR", {2, 10, 0.8}) == 8);
    CHECK(call(u"LR", {4, 10, 0.8}) == 6.4);
    CHECK(call(u"LR", {8, 10, 0.8}) == 5.12);
    CHECK(call(u"LR", {8, 10, 1}) == 10);
    CHECK(call(u"LR", {8, 10, 2}) == 80);
}

TEST_CASE("a learning index that has no logarithm gives 0") {
    CHECK(call(u"LR", {8, 10, 0}) == 0);
    CHECK(call(u"LR", {8, 10, -0.8}) == 0);
}

TEST_CASE("a number of units that has no such power gives 0") {
    CHECK(call(u"LR", {0, 10, 0.8}) == 0);
    CHECK(call(u"LR", {-8, 10, 0.8}) == 0);
    CHECK(call(u"LR", {-8, 10, 0.5}) == -1.25);  // the exponent is -1
}

TEST_CASE("shares of nobody are 0") {
    CHECK(call(u"HRA", {40, 0}) == 0);
    CHECK(call(u"HRCPH", {9000, 0}) == 0);
    CHECK(call(u"HRPM", {3, 0}) == 0);
    CHECK(call(u"HRR", {18, 0}) == 0);
}

TEST_CASE("promotions and those who stayed are registered with one description") {
    CHECK((find_function(u"HRPM")->description == find_function(u"HRR")->description));
    CHECK(
        (find_function(u"HRR")->description == u"Returns the number of entry level staff hired promoted to managers."));
}
