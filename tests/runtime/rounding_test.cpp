#include "runtime/rounding.hpp"

#include <doctest/doctest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::raised;

namespace {

// The same rounding done on paper: on all the decimal digits that the double has.
double rounded_on_paper(double value, std::int32_t places) {
    std::array<char, 1500> buffer;
    char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value), std::chars_format::fixed, 1100)
            .ptr;
    std::string digits(buffer.data(), end);
    const std::size_t point = digits.find('.');
    if (places >= 1100) return value;
    const std::string rest = digits.substr(point + 1 + static_cast<std::size_t>(places));
    std::string kept(1, '0');
    kept.append(digits, 0, point + 1 + static_cast<std::size_t>(places));
    const char last = kept.back() == '.' ? kept[kept.size() - 2] : kept.back();
    const bool tie = rest.front() == '5' && rest.find_first_not_of('0', 1) == std::string::npos;
    if (tie ? (last - '0') % 2 == 1 : rest.front() >= '5') {
        std::size_t place = kept.size() - 1;
        while (kept[place] == '9' || kept[place] == '.') {
            if (kept[place] == '9') kept[place] = '0';
            --place;
        }
        ++kept[place];
    }
    double result = 0;
    std::from_chars(kept.data(), kept.data() + kept.size(), result);
    return std::copysign(result, value);
}

bool identical(double left, double right) {
    return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

#ifdef QOR_RAPIDCHECK
rc::Gen<double> any_finite_double() {
    return rc::gen::map(rc::gen::arbitrary<std::uint64_t>(), [](std::uint64_t bits) {
        const auto value = std::bit_cast<double>(bits);
        return std::isfinite(value) ? value : 0.0;
    });
}
#endif

}  // namespace

TEST_CASE("an exact tie goes to the even digit") {
    CHECK(round_half_even(2.5, 0) == 2);
    CHECK(round_half_even(3.5, 0) == 4);
    CHECK(round_half_even(-2.5, 0) == -2);
    CHECK(round_half_even(-3.5, 0) == -4);
    CHECK(round_half_even(0.125, 2) == 0.12);
    CHECK(round_half_even(0.375, 2) == 0.38);
    CHECK(round_half_even(0.03125, 4) == 0.0312);
    CHECK(round_half_even(0.09375, 4) == 0.0938);
}

TEST_CASE("what only looks like a tie falls to the side where the double lies") {
    CHECK(round_half_even(1.00005, 4) == 1.0001);  // 1.000050000000000105...
    CHECK(round_half_even(1.00025, 4) == 1.0003);  // 1.000250000000000083...
    CHECK(round_half_even(1.005, 2) == 1.0);       // 1.004999999999999893...
    CHECK(round_half_even(2.675, 2) == 2.67);      // 2.674999999999999822...
    CHECK(round_half_even(0.15, 1) == 0.1);        // 0.149999999999999994...
    CHECK(round_half_even(0.35, 1) == 0.3);        // 0.349999999999999977...
    CHECK(round_half_even(0.45, 1) == 0.5);        // 0.450000000000000011...
    CHECK(round_half_even(1.015, 2) == 1.01);      // 1.014999999999999902...
    CHECK(round_half_even(1.45, 1) == 1.4);        // 1.449999999999999955...
    CHECK(round_half_even(-2.675, 2) == -2.67);
}

TEST_CASE("values that a double cannot hold more exactly stay as they are") {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    CHECK(round_half_even(1e300, 4) == 1e300);
    CHECK(round_half_even(1e300, 400) == 1e300);
    CHECK(round_half_even(0.1, 20) == 0.1);
    CHECK(round_half_even(1.0 / 3, std::numeric_limits<std::int32_t>::max()) == 1.0 / 3);
    CHECK(round_half_even(123456789.123456789, 22) == 123456789.123456789);
    CHECK(round_half_even(infinity, 2) == infinity);
    CHECK(round_half_even(-infinity, 30) == -infinity);
    CHECK(std::isnan(round_half_even(std::numeric_limits<double>::quiet_NaN(), 2)));
    CHECK(identical(round_half_even(0.0, 3), 0.0));
    CHECK(identical(round_half_even(-0.0, 3), -0.0));
    constexpr double smallest = std::numeric_limits<double>::denorm_min();
    CHECK(round_half_even(smallest, 4) == 0);
    CHECK(round_half_even(smallest, 1074) == smallest);
    CHECK(round_half_even(smallest, 2000) == smallest);
    CHECK(round_half_even(1.26e-30, 31) == 1.3e-30);
    CHECK(round_half_even(4503599627370497.5, 0) == 4503599627370498.0);
    CHECK(round_half_even(4503599627370496.5, 0) == 4503599627370496.0);
}

TEST_CASE("negative places are an invalid argument") {
    CHECK(raised([] { return round_half_even(1, -1); }) == 5);
    CHECK(raised([] { return round_half_even(1, std::numeric_limits<std::int32_t>::min()); }) == 5);
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("rounding agrees with exact decimal arithmetic") {
    const auto agrees = [](double value, std::int32_t places) {
        RC_ASSERT(identical(round_half_even(value, places), rounded_on_paper(value, places)));
    };
    CHECK(rc::check("any double", [&] { agrees(*any_finite_double(), *rc::gen::inRange(0, 1100)); }));
    CHECK(rc::check("amounts", [&] {
        agrees(*rc::gen::arbitrary<double>() / *rc::gen::inRange(1, 1000), *rc::gen::inRange(0, 25));
    }));
    CHECK(rc::check("decimal numbers that end in 5", [&] {
        const auto places = *rc::gen::inRange(0, 15);
        const auto digits = static_cast<double>(*rc::gen::arbitrary<std::int32_t>()) * 10 + 5;
        agrees(digits / std::pow(10.0, places + 1), places);
    }));
    CHECK(rc::check("exact ties", [&] {
        const auto places = *rc::gen::inRange(0, 20);
        const auto odd = static_cast<double>(*rc::gen::arbitrary<std::int32_t>() | 1);
        agrees(std::ldexp(odd, -(places + 1)), places);
    }));
    CHECK(rc::check("exact ties among the largest", [&] {
        const auto places = *rc::gen::inRange(0, 16);
        const auto least = std::ldexp(1.0, 51) / std::pow(5.0, places);
        const auto odd = 2 * std::floor(least * (1 + *rc::gen::inRange(0, 1000) / 1000.0)) + 1;
        agrees(std::ldexp(odd, -(places + 1)), places);
    }));
    CHECK(rc::check("around the end of the whole numbers", [&] {
        const auto places = *rc::gen::inRange(0, 22);
        const auto near = std::ldexp(1.0, *rc::gen::inRange(50, 55)) / std::pow(10.0, places);
        agrees(near * (1 + *rc::gen::inRange(-1000, 1000) * 0x1p-52), places);
    }));
}
#endif

TEST_CASE("money rounds exactly, half to even") {
    const auto rounded = [](std::int64_t ten_thousandths, std::int32_t places) {
        return round_half_even(Currency{ten_thousandths}, places).ten_thousandths;
    };
    CHECK(rounded(12345, 2) == 12300);
    CHECK(rounded(12350, 2) == 12400);
    CHECK(rounded(12450, 2) == 12400);
    CHECK(rounded(12451, 2) == 12500);
    CHECK(rounded(-12350, 2) == -12400);
    CHECK(rounded(-12450, 2) == -12400);
    CHECK(rounded(5000, 0) == 0);
    CHECK(rounded(15000, 0) == 20000);
    CHECK(rounded(-25000, 0) == -20000);
    CHECK(rounded(12345, 3) == 12340);
    CHECK(rounded(12345, 4) == 12345);
    CHECK(rounded(12345, 30) == 12345);
    CHECK(rounded(9223372036854775807, 2) == 9223372036854775800);
    CHECK(raised([&] { return rounded(9223372036854775807, 1); }) == 6);
    CHECK(raised([&] { return rounded(std::numeric_limits<std::int64_t>::min(), 1); }) == 6);
    CHECK(raised([&] { return rounded(1, -1); }) == 5);
}

TEST_CASE("a value is rounded in its own kind") {
    const auto same = [](const Variant& rounded, const auto& expected) {
        const auto* held = rounded.get_if<std::remove_cvref_t<decltype(expected)>>();
        return held && *held == expected;
    };
    CHECK(same(round_half_even(Variant(std::int16_t{7}), 2), std::int16_t{7}));
    CHECK(same(round_half_even(Variant(70000), 0), std::int32_t{70000}));
    CHECK(same(round_half_even(Variant(true), 0), std::int16_t{-1}));
    CHECK(same(round_half_even(Variant(Empty{}), 0), std::int16_t{0}));
    CHECK(same(round_half_even(Variant(2.5F), 0), 2.0F));
    CHECK(same(round_half_even(Variant(2.665), 2), 2.67));
    CHECK(same(round_half_even(Variant(Currency{12350}), 2), Currency{12400}));
    CHECK(same(round_half_even(Variant(Date{38061.75}), 1), Date{38061.8}));
    CHECK(same(round_half_even(Variant(u"3.5"), 0), 4.0));
    CHECK(round_half_even(Variant(Null{}), 0).is(Variant::Kind::null));
    CHECK(raised([] { return round_half_even(Variant(u"x"), 0); }) == 13);
    CHECK(raised([] { return round_half_even(Variant(std::int16_t{1}), -1); }) == 5);
}
