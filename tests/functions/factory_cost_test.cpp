#include <doctest/doctest.h>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("a cost is the input at its price or rate") {
    for (const std::u16string_view name :
         {u"ADC", u"AFFO", u"AVFO", u"NDC", u"NFFO", u"NVFO", u"SDC", u"SFFO", u"SVFO"}) {
        CHECK(call(name, {3, 2.5}) == 7.5);
        CHECK(call(name, {0.5, 5, 0}) == 2);
        CHECK(call(name, {0.5, 7, 0}) == 4);
        CHECK(call(name, {1e200, 1e200}) == 0);
        CHECK(call(name, {0, 1e308}) == 0);
        CHECK(call(name, {3, 2.5, -1}) == 0);
    }
}

TEST_CASE("actual and normal costs are one product under two names") {
    CHECK(parameters_of(u"ADC") == parameters_of(u"NDC"));
    CHECK(parameters_of(u"AFFO") == parameters_of(u"NFFO"));
    CHECK(parameters_of(u"AVFO") == parameters_of(u"NVFO"));
    CHECK(find_function(u"ADC")->help_id == 100040);
    CHECK(find_function(u"NDC")->help_id == 100565);
    CHECK((find_function(u"ADC")->description == u"Returns Actual Direct Costs."));
    CHECK((find_function(u"NDC")->description == u"Returns the Normal Direct Costs."));
}

TEST_CASE("an overhead rate over no units is 0") {
    for (const std::u16string_view name : {u"FFOR", u"VFOR"}) {
        CHECK(call(name, {1, 3}) == 0.3333);
        CHECK(call(name, {1, 0}) == 0);
        CHECK(call(name, {0, 0}) == 0);
        CHECK(call(name, {1e308, 0.1}) == 0);
    }
}
