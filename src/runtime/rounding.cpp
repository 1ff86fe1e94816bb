#include "runtime/rounding.hpp"

#include <array>
#include <charconv>
#include <cmath>

#include "automation/error.hpp"

namespace qor {
namespace {

// The powers of ten that a double holds exactly.
constexpr std::array powers_of_ten{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr auto exact_places = static_cast<std::int32_t>(powers_of_ten.size() - 1);
constexpr double first_without_neighbours = 9007199254740992;  // 2^53: from here on not every whole number is a double

// The whole number nearest to value * power, half to even. `product` is that product as a double, below 2^53.
double nearest_whole(double value, double power, double product) {
    const double whole = std::nearbyint(product);
    const double rest = product - whole;  // exact
    // Away from a tie the product's own error, half a unit of its last place, cannot change the side. From 2^52 on the
    // multiplication has itself rounded to the whole number, half to even.
    if (std::abs(rest) != 0.5) return whole;
    const double product_error = std::fma(value, power, -product);  // exact
    const bool is_beyond_tie = product_error != 0 && std::signbit(product_error) == std::signbit(rest);
    return is_beyond_tie ? whole + std::copysign(1.0, rest) : whole;
}

// For values so small that the power of ten is none that a double holds: by the decimal digits themselves.
double round_digits(double value, std::int32_t places) {
    constexpr std::int32_t most_places = 1074;  // of the smallest double
    if (places >= most_places) return value;
    std::array<char, most_places + 8> buffer;
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, places);
    double result = 0;
    std::from_chars(buffer.data(), written.ptr, result);
    return result;
}

}  // namespace

double round_half_even(double value, std::int32_t places) {
    if (places < 0) throw Error(ErrorNumber::invalid_call);
    const bool is_exact_power = places <= exact_places;
    const double power = powers_of_ten[static_cast<std::size_t>(is_exact_power ? places : exact_places)];
    const double product = value * power;
    // The decimal places are closer together than doubles are; true for infinities and what is no number as well.
    if (!(std::abs(product) < first_without_neighbours)) return value;
    return is_exact_power ? nearest_whole(value, power, product) / power : round_digits(value, places);
}

}  // namespace qor
