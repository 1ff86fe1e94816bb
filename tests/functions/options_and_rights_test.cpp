#include <doctest/doctest.h>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("an option out of the money has a negative value") {
    CHECK(call(u"VOC", {10, 12, 100}) == -200);
    CHECK(call(u"VOP", {10, 12, 100}) == 200);
    CHECK(call(u"VOP", {12, 10, 100}) == -200);
    CHECK(call(u"VOW", {10, 12, 100}) == -200);
    CHECK(call(u"VOSR", {42, 50, 4}) == -2);
}

TEST_CASE("an option at the money and a right to nothing give 0") {
    for (const auto* name : {u"VOC", u"VOP", u"VOW", u"VOSR"}) {
        CHECK(call(name, {12, 12, 100}) == 0);
        CHECK(call(name, {12, 10, 0}) == 0);
    }
}

TEST_CASE("call and warrant are of one shape with parameters of their own") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"VOC") == Names{u"dMVPShr", u"dExrcsPShr", u"dNoShrs", u"lDecPlace"}));
    CHECK((parameters_of(u"VOW") == Names{u"dMVPShr", u"dExrcsPShr", u"dShrsPrchsWWrnt", u"lDecPlace"}));
}
