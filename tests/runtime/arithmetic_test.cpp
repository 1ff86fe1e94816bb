#include "runtime/arithmetic.hpp"

#include <doctest/doctest.h>

#include <limits>
#include <vector>

#include "runtime/checked.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::raised;

namespace {

constexpr double largest = std::numeric_limits<double>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

template <class T>
bool holds(const Variant& value, const T& expected) {
    const T* held = value.get_if<T>();
    return held && *held == expected;
}

}  // namespace

TEST_CASE("a sum takes the wider kind") {
    const std::int16_t zero = 0;
    CHECK(holds(add(zero, 1.5), 1.5));
    CHECK(holds(add(zero, std::int16_t{7}), std::int16_t{7}));
    CHECK(holds(add(zero, Empty{}), zero));
    CHECK(holds(add(zero, true), std::int16_t{-1}));
    CHECK(holds(add(zero, 7), 7));
    CHECK(holds(add(zero, 1.5F), 1.5F));
    CHECK(holds(add(7, 1.5F), 8.5));
    CHECK(holds(add(zero, Currency{5}), Currency{5}));
    CHECK(holds(add(1.5, Currency{5}), Currency{15005}));
    CHECK(holds(add(zero, Date{5}), Date{5}));
    CHECK(holds(add(zero, u" 2.5"), 2.5));
    CHECK(holds<std::u16string>(add(u"a", u"b"), u"ab"));
    CHECK(holds<std::u16string>(add(Empty{}, u"b"), u"b"));
    CHECK(holds<std::u16string>(add(u"b", Empty{}), u"b"));
    CHECK(holds(add(zero, Null{}), Null{}));
}

TEST_CASE("a sum that does not fit takes the next wider kind") {
    CHECK(holds(add(std::int16_t{32767}, std::int16_t{1}), 32768));
    CHECK(holds(add(2147483647, 1), 2147483648.0));
    CHECK(holds(add(3e38F, 3e38F), static_cast<double>(3e38F) * 2));
    CHECK(holds(add(Date{2958465}, 1), 2958466.0));
    CHECK(raised([] { return add(largest, largest); }) == 6);
    CHECK(raised([] { return add(Currency{std::numeric_limits<std::int64_t>::max()}, Currency{1}); }) == 6);
}

TEST_CASE("what is no number cannot be added") {
    CHECK(raised([] { return add(0, u"abc"); }) == 13);
    CHECK(raised([] { return add(0, ErrorValue{2007}); }) == 13);
    CHECK(raised([] { return add(0, Missing{}); }) == 13);
    CHECK(raised([] { return add(Array::list({1}), 0); }) == 13);
    CHECK(raised([] { return add(Object(), 0); }) == 91);
}

TEST_CASE("a quotient is a double") {
    CHECK(holds(divide(1, 4), 0.25));
    CHECK(holds(divide(Null{}, 4), Null{}));
    CHECK(raised([] { return divide(1, 0); }) == 11);
    CHECK(raised([] { return divide(0, 0); }) == 6);
    CHECK(raised([] { return divide(largest, 0.5); }) == 6);
}

TEST_CASE("every operation of a checked double faults as the run time faults") {
    const Checked big(largest);
    CHECK((Checked(1) / Checked(4)).value() == 0.25);
    CHECK((-Checked(2)).value() == -2);
    CHECK(raised([&] { return big + big; }) == 6);
    CHECK(raised([&] { return -big - big; }) == 6);
    CHECK(raised([&] { return big * big; }) == 6);
    CHECK(raised([&] { return big / Checked(0.1); }) == 6);
    CHECK(raised([] { return Checked(-3) / Checked(0); }) == 11);
    CHECK(raised([] { return Checked(3) / Checked(-0.0); }) == 11);
    CHECK(raised([] { return Checked(0) / Checked(0); }) == 6);
    CHECK(raised([] { return Checked(infinity) - Checked(infinity); }) == 5);
    CHECK(raised([] { return Checked(infinity) * Checked(0); }) == 5);
    CHECK((Checked(infinity) + Checked(1)).value() == infinity);

    CHECK(power(Checked(100), Checked(0.5)).value() == 10);
    CHECK(power(Checked(0), Checked(0)).value() == 1);
    CHECK(power(Checked(-2), Checked(3)).value() == -8);
    CHECK(raised([] { return power(Checked(-1), Checked(0.5)); }) == 5);
    CHECK(raised([] { return power(Checked(0), Checked(-1)); }) == 5);
    CHECK(raised([] { return power(Checked(10), Checked(400)); }) == 6);

    CHECK(natural_logarithm(Checked(1)).value() == 0);
    CHECK(raised([] { return natural_logarithm(Checked(0)); }) == 5);
    CHECK(raised([] { return natural_logarithm(Checked(-1)); }) == 5);
}
