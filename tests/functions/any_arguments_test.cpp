#include <doctest/doctest.h>

#include <cmath>
#include <limits>
#include <random>

#include "functions/registry.hpp"
#include "platform/text.hpp"

using namespace qor;

namespace {

// Every kind of value that a host can hand over, the extremes of each included.
const std::vector<Variant>& hostile_values() {
    using Limits = std::numeric_limits<double>;
    static const std::vector<Variant> values{
        Empty{},
        Null{},
        Missing{},
        true,
        false,
        std::int16_t{-32768},
        std::numeric_limits<std::int32_t>::min(),
        std::numeric_limits<std::int32_t>::max(),
        0,
        1,
        -1,
        1.5F,
        0.0,
        -0.0,
        1e-300,
        Limits::denorm_min(),
        Limits::max(),
        Limits::lowest(),
        Limits::infinity(),
        -Limits::infinity(),
        Limits::quiet_NaN(),
        Currency{std::numeric_limits<std::int64_t>::max()},
        Date{-657434.0},
        Date{2958465.99},
        Date{1e300},
        ErrorValue{2007},
        Object(),
        Array::list({Variant(1), Variant(u"b")}),
        u"",
        u" 12 ",
        u"1e999",
        u"&HFFFF",
        u"31 December 9999",
        u"%#[!*?",
        std::u16string(32767, u'9'),
        std::u16string(32767, u'['),
        std::u16string(u"\xD800\0x", 3),
    };
    return values;
}

bool is_finite_or_no_number(const Variant& value) {
    const double* number = value.get_if<double>();
    return !number || std::isfinite(*number);
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
                Variant result;
                if (attempt([&] { result = function.invoke(arguments); }) != 0) continue;
                ++answers;
                REQUIRE(is_finite_or_no_number(result));
                REQUIRE_FALSE(result.is(Variant::Kind::error));
                REQUIRE_FALSE(result.is_missing());
            }
        }
    }
    CHECK(answers > 1000);
}
