#include <doctest/doctest.h>

#include <cmath>
#include <limits>

#include "functions/function.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::raised;

namespace {

constexpr double largest = std::numeric_limits<double>::max();

Function quotient(Rounding rounding = Rounding::to_decimal_places) {
    return {{.name = u"QUOTIENT",
             .description = u"Returns the quotient of two values.",
             .parameters = {u"dDividend", {u"dDivisor", 3}},
             .formula = [](Checked dDividend, Checked dDivisor) { return dDividend / dDivisor; },
             .rounding = rounding},
            Category::financial};
}

double number(const Variant& value) {
    REQUIRE(value.is(Variant::Kind::double_float));
    return *value.get_if<double>();
}

}  // namespace

TEST_CASE("a checked result is rounded to lDecPlace, four places if it is left out") {
    const Function function = quotient();
    CHECK(number(function.invoke({1, 3})) == 0.3333);
    CHECK(number(function.invoke({2, 3, 1})) == 0.7);
    CHECK(number(function.invoke({5, 2, 0})) == 2);
    CHECK(number(function.invoke({7, 2, 0})) == 4);
    CHECK(number(function.invoke({1, 3, 100})) == 1.0 / 3);
    CHECK(number(function.invoke({1, 3, u"2"})) == 0.33);
    CHECK(number(function.invoke({1, 3, 1.5})) == 0.33);
    CHECK(number(function.invoke({1, 3, Missing{}})) == 0.3333);
    CHECK(number(function.invoke({1, 3, Empty{}})) == 0);
    CHECK_FALSE(std::signbit(number(function.invoke({-1, 3, 0}))));
}

TEST_CASE("a negative lDecPlace faults the rounding") {
    CHECK(number(quotient().invoke({1, 3, -1})) == 0);
    CHECK(number(quotient().invoke({7, 1, std::numeric_limits<std::int32_t>::min()})) == 0);
}

TEST_CASE("lDecPlace can be there and not be read") {
    const Function function = quotient(Rounding::always_four_places);
    CHECK(function.parameters.size() == 3);
    CHECK(number(function.invoke({10, 3, 0})) == 3.3333);
    CHECK(number(function.invoke({10, 3, -1})) == 3.3333);
    CHECK(raised([&] { function.invoke({10, 3, u"many"}); }) == 13);
}

TEST_CASE("a function without rounding has no lDecPlace") {
    const Function function = quotient(Rounding::none);
    CHECK(function.parameters.size() == 2);
    CHECK(number(function.invoke({1, 3})) == 1.0 / 3);
    CHECK(raised([&] { function.invoke({1, 3, 4}); }) == 450);
}

TEST_CASE("a formula that faults leaves 0") {
    const Function function = quotient();
    CHECK(number(function.invoke({1, 0})) == 0);
    CHECK(number(function.invoke({0, 0})) == 0);
    CHECK(number(function.invoke({largest, 0.1})) == 0);
    CHECK(number(function.invoke({Empty{}, Empty{}})) == 0);
}

TEST_CASE("arguments are converted before the function begins") {
    const Function function = quotient();
    CHECK(number(function.invoke({u" 9 ", u"&H4", 2})) == 2.25);
    CHECK(number(function.invoke({true, Currency{20000}})) == -0.5);
    CHECK(number(function.invoke({9})) == 3);
    CHECK(number(function.invoke({9, Missing{}, 0})) == 3);
    CHECK(raised([&] { function.invoke({u"abc", 1}); }) == 13);
    CHECK(raised([&] { function.invoke({1, ErrorValue{2007}}); }) == 13);
    CHECK(raised([&] { function.invoke({1, Null{}}); }) == 94);
    CHECK(raised([&] { function.invoke({1, 2, 3e9}); }) == 6);
    CHECK(raised([&] { function.invoke(std::vector<Variant>{}); }) == 449);
    CHECK(raised([&] { function.invoke({Missing{}, 1}); }) == 449);
    CHECK(raised([&] { function.invoke({1, 2, 3, 4}); }) == 450);
}

TEST_CASE("every kind of parameter and result has its way through the frame") {
    const Function text{{.name = u"TEXT",
                         .parameters = {u"sText", u"lCount", {u"bTwice", Missing{}}},
                         .formula =
                             [](const std::u16string& sText, std::int32_t lCount, bool bTwice) {
                                 if (lCount < 0) throw Error(ErrorNumber::invalid_call);
                                 return sText.substr(0, static_cast<std::size_t>(lCount)) + (bTwice ? u"!!" : u"!");
                             }},
                        Category::text};
    CHECK(text.result_kind() == ValueKind::text);
    CHECK(text.parameters[0].kind == ValueKind::text);
    CHECK(text.parameters[1].kind == ValueKind::whole_number);
    CHECK(text.parameters[2].kind == ValueKind::boolean);
    CHECK((to_text(text.invoke({12.5, 2})) == u"12!"));
    CHECK((to_text(text.invoke({u"abc", 2.5, true})) == u"ab!!"));
    CHECK(text.invoke({u"abc", -1}).is(Variant::Kind::text));
    CHECK(to_text(text.invoke({u"abc", -1})).empty());

    const Function any{{.name = u"ANY",
                        .parameters = {{u"vValue", Missing{}}},
                        .formula =
                            [](const Variant& vValue) {
                                if (vValue.is_missing()) throw Error(ErrorNumber::invalid_call);
                                return vValue;
                            }},
                       Category::information};
    CHECK(any.invoke({ErrorValue{2007}}).is(Variant::Kind::error));
    CHECK(any.invoke(std::vector<Variant>{}).is_empty());

    const Function truth{{.name = u"TRUTH",
                          .parameters = {u"dNumber"},
                          .formula =
                              [](double dNumber) {
                                  if (dNumber > 9) throw Error(ErrorNumber::overflow);
                                  return dNumber > 0;
                              }},
                         Category::logical};
    CHECK(to_boolean(truth.invoke({1})));
    CHECK_FALSE(to_boolean(truth.invoke({10})));
    CHECK(truth.invoke({10}).is(Variant::Kind::boolean));
    CHECK(truth.rounding == Rounding::none);

    const Function whole{{.name = u"WHOLE", .formula = [] { return std::int32_t{7}; }}, Category::date_and_time};
    CHECK(whole.invoke(std::vector<Variant>{}).is(Variant::Kind::long_integer));

    CHECK(number(quotient().starting_value()) == 0);
    CHECK(whole.starting_value().is(Variant::Kind::long_integer));
    CHECK(truth.starting_value().is(Variant::Kind::boolean));
    CHECK_FALSE(to_boolean(truth.starting_value()));
    CHECK(text.starting_value().is(Variant::Kind::text));
    CHECK(to_text(text.starting_value()).empty());
    CHECK(any.starting_value().is_empty());
}

TEST_CASE("a parameter by reference goes back to the caller") {
    const Function function{{.name = u"COUNTUP",
                             .parameters = {{u"lCount", Missing{}}},
                             .formula = [](std::int32_t& lCount) { return ++lCount; }},
                            Category::information};
    CHECK(function.parameters[0].is_by_reference);
    std::vector<Variant> arguments{u"41"};
    CHECK(to_long(function.invoke(std::span(arguments))) == 42);
    CHECK(to_long(arguments[0]) == 42);
    arguments[0] = Missing{};
    CHECK(to_long(function.invoke(std::span(arguments))) == 1);
    CHECK(arguments[0].is_missing());
}

TEST_CASE("a declaration whose parameters do not fit its formula is refused at once") {
    CHECK_THROWS_AS(
        Function({.name = u"ODD", .parameters = {u"dOne"}, .formula = [] { return Checked(1); }}, Category::financial),
        std::logic_error);
}
