#include <doctest/doctest.h>

#include "tests/functions/call.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("figures per share need shares") {
    CHECK(call(u"BVPS", {5000, 0}) == 0);
    CHECK(call(u"CFPS", {100, 350, 0}) == 0);
    CHECK(call(u"DPS", {120, 0}) == 0);
    CHECK(call(u"EPS", {1000, 0}) == 0);
}

TEST_CASE("a cash flow is the end less the beginning") {
    CHECK(call(u"CFPS", {350, 100, 500}) == -0.5);
    CHECK(call(u"CFPS", {100, 100, 500}) == 0);
}

TEST_CASE("preferred dividends come off the net income") {
    CHECK(call(u"DP", {30, 130, 10}) == 0.25);
    CHECK(call(u"DP", {30, 120, Missing{}}) == 0.25);
    CHECK(call(u"DP", {30, 120, 120}) == 0);
    CHECK(call(u"EPS", {1000, 400, Missing{}}) == 2.5);
    CHECK(call(u"EPS", {1000, 300, 100}) == 3);
    CHECK(call(u"EPS", {1000, 300, 1300}) == -1);
}

TEST_CASE("only dPrfrdDiv of EPS goes back to its caller, as the double it was read as") {
    const Function& function = *find_function(u"EPS");
    CHECK_FALSE(function.parameters[0].is_by_reference);
    CHECK_FALSE(function.parameters[1].is_by_reference);
    CHECK(function.parameters[2].is_by_reference);
    CHECK(function.parameters[2].is_optional());
    CHECK(function.parameters[2].default_value->is_missing());

    std::vector<Variant> arguments{u"1000", u"300", u"100", u"2"};
    CHECK(*function.invoke(std::span(arguments)).get_if<double>() == 3);
    CHECK(arguments[0].is(Variant::Kind::text));
    CHECK(arguments[1].is(Variant::Kind::text));
    REQUIRE(arguments[2].is(Variant::Kind::double_float));
    CHECK(*arguments[2].get_if<double>() == 100);
    CHECK(arguments[3].is(Variant::Kind::text));

    arguments = {1000, 400, Missing{}};
    CHECK(*function.invoke(std::span(arguments)).get_if<double>() == 2.5);
    CHECK(arguments[2].is_missing());

    CHECK_FALSE(find_function(u"DP")->parameters[2].is_by_reference);
    CHECK_FALSE(find_function(u"DP")->parameters[2].default_value->is_missing());
}

TEST_CASE("an argument that is no number is refused before EPS begins") {
    CHECK(test::raised([] { find_function(u"EPS")->invoke({1000, 300, u"few"}); }) == 13);
    CHECK(test::raised([] { find_function(u"EPS")->invoke({1000}); }) == 449);
}

TEST_CASE("price to book is registered in capitals and spelled small as a member") {
    const Function& function = *find_function(u"PB");
    CHECK((function.name == u"PB"));
    CHECK((function.member == u"pb"));
    CHECK(call(u"pb", {30, 12}) == 2.5);
    CHECK(call(u"pb", {30, 0}) == 0);
}

TEST_CASE("what is kept of the net income can be negative") {
    CHECK(call(u"RETENTION", {200, 250}) == -0.25);
    CHECK(call(u"RETENTION", {0, 50}) == 0);
}

TEST_CASE("indicators of the market over nothing give 0") {
    CHECK(call(u"BI", {600, 900, 2000}) == -0.15);
    CHECK(call(u"BI", {600, 900, 0}) == 0);
    CHECK(call(u"BCI", {4.5, 0}) == 0);
    CHECK(call(u"BSI", {30, 0}) == 0);
    CHECK(call(u"NPNC", {300, 0}) == 0);
    CHECK(call(u"OLI", {90, 0}) == 0);
}

TEST_CASE("products that are too large for a double give 0") {
    CHECK(call(u"MRKTCAP", {1e200, 1e200}) == 0);
    CHECK(call(u"GR", {1e200, -1e200}) == 0);
}

TEST_CASE("shares are named in two ways") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"CFPS") == Names{u"dBgCsh", u"dEdCsh", u"dWghtOtstndgShrs", u"lDecPlace"}));
    for (const auto* name : {u"BVPS", u"DPS", u"EPS"}) {
        CHECK((parameters_of(name)[1] == u"dWghtdOtstndngShrs"));
    }
}
