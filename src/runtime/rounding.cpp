#include "runtime/rounding.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "automation/error.hpp"
#include "runtime/conversion.hpp"

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

Currency round_half_even(Currency value, std::int32_t places) {
    constexpr std::array<std::int64_t, 4> units{10'000, 1'000, 100, 10};  // in ten-thousandths
    if (places < 0) throw Error(ErrorNumber::invalid_call);
    if (places >= static_cast<std::int32_t>(units.size())) return value;
    const std::int64_t unit = units[static_cast<std::size_t>(places)];
    const std::int64_t rest = value.ten_thousandths % unit;
    const std::int64_t twice = 2 * std::abs(rest);
    const bool is_odd = value.ten_thousandths / unit % 2 != 0;
    std::int64_t rounded = value.ten_thousandths - rest;
    if (twice > unit || (twice == unit && is_odd)) {
        const std::int64_t step = rest < 0 ? -unit : unit;
        constexpr std::numeric_limits<std::int64_t> limits;
        if (step > 0 ? rounded > limits.max() - step : rounded < limits.min() - step) {
            throw Error(ErrorNumber::overflow);
        }
        rounded += step;
    }
    return {rounded};
}

Variant round_half_even(const Variant& value, std::int32_t places) {
    using Kind = Variant::Kind;
    if (places < 0) throw Error(ErrorNumber::invalid_call);
    switch (value.kind()) {
        case Kind::null:
        case Kind::integer:
        case Kind::long_integer:
            return value;
        case Kind::empty:
        case Kind::boolean:
            return to_integer(value);
        case Kind::currency:
            return round_half_even(to_currency(value), places);
        case Kind::single:
            return static_cast<float>(round_half_even(to_double(value), places));
        case Kind::date:
            return Date{round_half_even(to_double(value), places)};
        default:
            return round_half_even(to_double(value), places);
    }
}

}  // namespace qor
