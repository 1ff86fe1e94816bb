#pragma once

#include <doctest/doctest.h>

#include <string_view>
#include <utility>
#include <vector>

#include "functions/registry.hpp"

namespace qor::test {

// The result of a function, called by its name.
inline Variant result_of(std::u16string_view name, std::vector<Variant> arguments) {
    const Function* function = find_function(name);
    REQUIRE(function != nullptr);
    return function->invoke(std::move(arguments));
}

// The result of a financial function, called by its name.
inline double call(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = result_of(name, std::move(arguments));
    REQUIRE(result.is(Variant::Kind::double_float));
    return *result.get_if<double>();
}

inline std::vector<std::u16string_view> parameters_of(std::u16string_view name) {
    const Function* function = find_function(name);
    REQUIRE(function != nullptr);
    return function->parameter_names();
}

}  // namespace qor::test
