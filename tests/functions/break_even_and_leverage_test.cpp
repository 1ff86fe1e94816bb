#include <doctest/doctest.h>

#include <limits>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;

namespace {
constexpr double largest = std::numeric_limits<double>::max();
}

TEST_CASE("nothing breaks even without a contribution") {
    CHECK(call(u"BEPD", {100, 0, 20}) == 0);
    CHECK(call(u"BEPD", {0, 0, 0}) == 0);
    CHECK(call(u"BEPU", {500, 0}) == 0);
    CHECK(call(u"CMR", {360, 0}) == 0);
}

TEST_CASE("the target is added to the fixed costs before they are divided") {
    CHECK(call(u"BEPD", {100, 0.5, 20}) == 240);
    CHECK(call(u"BEPD", {100, 0.5, -20}) == 160);
    CHECK(call(u"BEPD", {largest, 2, largest}) == 0);
}

TEST_CASE("the margin of safety is a part of the budgeted sales") {
    CHECK(call(u"MS", {400, 500}) == -0.25);
    CHECK(call(u"MS", {0, 500}) == 0);
    CHECK(call(u"MS", {0, 0}) == 0);
}

TEST_CASE("a contribution or a combined leverage that no double holds is 0") {
    CHECK(call(u"CM", {largest, -largest}) == 0);
    CHECK(call(u"DCL", {1e200, 1e200}) == 0);
    CHECK(call(u"DCL", {1.5, 3, 0}) == 4);
}

TEST_CASE("a leverage is a change over a change, each of the value it comes from") {
    for (const std::u16string_view name : {u"DOL", u"DFL"}) {
        CHECK(call(name, {100, 150, 10, 12}) == 2.5);
        CHECK(call(name, {100, 50, 10, 12}) == -2.5);
        CHECK(call(name, {100, 100, 10, 12}) == 0);
        CHECK(call(name, {0, 150, 10, 12}) == 0);
        CHECK(call(name, {100, 150, 0, 12}) == 0);
        CHECK(call(name, {100, 150, 10, 10}) == 0);
        CHECK(call(name, {0, 0, 0, 0}) == 0);
        CHECK(call(name, {100, 150, 10, 12, -1}) == 0);
    }
    using Names = std::vector<std::u16string_view>;
    CHECK((test::parameters_of(u"DFL") == Names{u"dFrmEPS", u"dToEPS", u"dFrmEBIT", u"dToEBIT", u"lDecPlace"}));
    CHECK((test::parameters_of(u"DOL") == Names{u"dFrmEBIT", u"dToEBIT", u"dFrmNS", u"dToNS", u"lDecPlace"}));
}
