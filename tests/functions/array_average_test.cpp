#include "functions/array_average.hpp"

#include <doctest/doctest.h>

#include <limits>
#include <vector>

using namespace qor;

namespace {

constexpr double largest = std::numeric_limits<double>::max();

// What the average of these values is as a double; fails the test where it is none.
double average_of(std::vector<Variant> values) {
    const Variant average = ArrayAverage(values);
    REQUIRE(average.is(Variant::Kind::double_float));
    return *average.get_if<double>();
}

}  // namespace

TEST_CASE("an average is the sum divided by the count") {
    CHECK(average_of({100.0, 300.0}) == 200);
    CHECK(average_of({1.0, 2.0, 4.5}) == 2.5);
    CHECK(average_of({100.0, -100.0}) == 0);
    CHECK(average_of({0.0, 0.0}) == 0);
    CHECK(average_of({7.0}) == 7);
    CHECK(average_of({std::int16_t{1}, 2}) == 1.5);
    CHECK(average_of({u"3", Empty{}}) == 1.5);
}

TEST_CASE("a value that cannot be added leaves the sum and still counts") {
    CHECK(average_of({u"abc", 300.0}) == 150);
    CHECK(average_of({100.0, ErrorValue{2007}}) == 50);
    CHECK(average_of({ErrorValue{2042}, u""}) == 0);
    CHECK(average_of({largest, largest}) == largest / 2);
    CHECK(average_of({-largest, -largest, largest}) == 0);
}

TEST_CASE("without a quotient the average stays empty") {
    CHECK(ArrayAverage({}).is_empty());
    CHECK(ArrayAverage(std::vector<Variant>{1.0, Null{}}).is(Variant::Kind::null));
}
