#include <doctest/doctest.h>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("the cash flow is set against the average of a balance") {
    for (const std::u16string_view name : {u"OCFA", u"OCFCL", u"OCFE", u"OCFLL", u"OCFNE"}) {
        CHECK(call(name, {10, 100, 300}) == 0.05);
        CHECK(call(name, {-10, 300, 100}) == -0.05);
        CHECK(call(name, {10, 100, -100}) == 0);
        CHECK(call(name, {10, 0, 0}) == 0);
        CHECK(call(name, {1, 2, 4, -1}) == 0);
    }
}

TEST_CASE("the cash flow is set against another flow as it is") {
    for (const std::u16string_view name : {u"OCFEBIT", u"OCFNI", u"OCFNS", u"CFI"}) {
        CHECK(call(name, {1, 3}) == 0.3333);
        CHECK(call(name, {5, 2, 0}) == 2);
        CHECK(call(name, {7, 2, 0}) == 4);
        CHECK(call(name, {1, 0}) == 0);
        CHECK(call(name, {0, 0}) == 0);
        CHECK(call(name, {1, 3, -1}) == 0);
    }
}

TEST_CASE("the parameters of the cash flow bear the names of the interface") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"OCFNE") == Names{u"dOpsCF", u"dBgEmplys", u"dEdEmplys", u"lDecPlace"}));
    CHECK((parameters_of(u"OCFLL") == Names{u"dOpsCF", u"dBgLTLiab", u"dEdLTLiab", u"lDecPlace"}));
    CHECK((parameters_of(u"CFI") == Names{u"dPVCFIn", u"dPVCFOut", u"lDecPlace"}));
}
