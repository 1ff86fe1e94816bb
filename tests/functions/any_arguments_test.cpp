#include <doctest/doctest.h>

#include <cmath>
#include <random>
#include <set>

#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "tests/functions/hostile_values.hpp"

using namespace qor;
using test::hostile_values;

namespace {

// What the conversion of an argument raises, before a function begins.
const std::set<std::int32_t> conversion_errors{6, 13, 91, 94, 449, 450};

// Whether it answered; whatever it answers can be shown in a cell.
bool survives(const Function& function, std::vector<Variant> arguments) {
    Variant result;
    const std::int32_t error = attempt([&] { result = function.invoke(std::move(arguments)); });
    if (error != 0) {
        CHECK(conversion_errors.contains(error));
        return false;
    }
    const double* number = result.get_if<double>();
    REQUIRE((!number || std::isfinite(*number)));
    REQUIRE_FALSE(result.is(Variant::Kind::error));
    REQUIRE_FALSE(result.is_missing());
    return true;
}

}  // namespace

TEST_CASE("no arguments make a function crash, hang or answer what a cell cannot show") {
    std::mt19937 random(20261121);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    std::size_t answers = 0;
    for (const auto functions : {worksheet_functions(), reserved_functions()}) {
        for (const Function& function : functions) {
            CAPTURE(to_utf8(function.name));
            for (int round = 0; round < 150; ++round) {
                std::vector<Variant> arguments(below(function.parameters.size() + 2));
                for (Variant& argument : arguments) argument = hostile_values()[below(hostile_values().size())];
                if (survives(function, std::move(arguments))) ++answers;
            }
        }
    }
    CHECK(answers > 1000);
}

TEST_CASE("no value in any one place, or in all, does so either") {
    for (const auto functions : {worksheet_functions(), reserved_functions()}) {
        for (const Function& function : functions) {
            CAPTURE(to_utf8(function.name));
            const std::vector<Variant>& usual = function.examples.front().arguments;
            for (const Variant& value : hostile_values()) {
                survives(function, std::vector<Variant>(function.parameters.size(), value));
                for (std::size_t place = 0; place < usual.size(); ++place) {
                    std::vector<Variant> arguments = usual;
                    arguments[place] = value;
                    survives(function, std::move(arguments));
                }
            }
            for (std::size_t count = 0; count < usual.size(); ++count)
                survives(function,
                         std::vector<Variant>(usual.begin(), usual.begin() + static_cast<std::ptrdiff_t>(count)));
        }
    }
}
