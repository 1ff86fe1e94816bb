#include "functions/array_average.hpp"

#include "runtime/arithmetic.hpp"

namespace qor {

Variant ArrayAverage(std::span<const Variant> values) {
    Variant sum = std::int16_t{0};
    for (const Variant& value : values) {
        attempt([&] { sum = add(sum, value); });
    }
    Variant average;
    attempt([&] { average = divide(sum, static_cast<std::int32_t>(values.size())); });
    return average;
}

}  // namespace qor
