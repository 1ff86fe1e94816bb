#include "runtime/clock.hpp"

#include <doctest/doctest.h>

#include <cmath>

using namespace qor;

TEST_CASE("the clock can be replaced") {
    const Date before = now();
    CHECK(before.serial > 45000);
    CHECK(today().serial == std::trunc(before.serial));
    const auto first_clock = wall_clock();
    wall_clock() = [] { return Date{38061.75}; };
    CHECK(now().serial == 38061.75);
    CHECK(today().serial == 38061);
    wall_clock() = first_clock;
}
