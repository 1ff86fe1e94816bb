#include <doctest/doctest.h>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

TEST_CASE("each ratio of a business failure index has its weight") {
    // The one item that is not 0 stands over assets of 10 or liabilities of 4.
    CHECK(call(u"AMBFIPRIVOM", {10, 0, 10, 4, 0, 0, 0}) == 0.717);
    CHECK(call(u"AMBFIPRIVOM", {0, 10, 10, 4, 0, 0, 0}) == 0.847);
    CHECK(call(u"AMBFIPRIVOM", {0, 0, 10, 4, 10, 0, 0}) == 3.107);
    CHECK(call(u"AMBFIPRIVOM", {0, 0, 10, 4, 0, 10, 0}) == 0.998);
    CHECK(call(u"AMBFIPRIVOM", {0, 0, 10, 4, 0, 0, 4}) == 0.42);
    CHECK(call(u"AMBFIPRIVON", {10, 0, 10, 4, 0, 0}) == 6.56);
    CHECK(call(u"AMBFIPRIVON", {0, 10, 10, 4, 0, 0}) == 3.26);
    CHECK(call(u"AMBFIPRIVON", {0, 0, 10, 4, 10, 0}) == 6.72);
    CHECK(call(u"AMBFIPRIVON", {0, 0, 10, 4, 0, 4}) == 1.05);
    CHECK(call(u"AMBFIPUBOM", {10, 0, 10, 4, 0, 0, 0}) == 1.2);
    CHECK(call(u"AMBFIPUBOM", {0, 10, 10, 4, 0, 0, 0}) == 1.4);
    CHECK(call(u"AMBFIPUBOM", {0, 0, 10, 4, 10, 0, 0}) == 3.3);
    CHECK(call(u"AMBFIPUBOM", {0, 0, 10, 4, 0, 10, 0}) == 1);
    CHECK(call(u"AMBFIPUBOM", {0, 0, 10, 4, 0, 0, 4}) == 0.6);
}

TEST_CASE("an index without assets or liabilities is 0 as a whole") {
    for (const std::u16string_view name : {u"AMBFIPRIVOM", u"AMBFIPUBOM"}) {
        CHECK(call(name, {100, 200, 0, 400, 300, 2000, 600}) == 0);
        CHECK(call(name, {100, 200, 1000, 0, 300, 2000, 600}) == 0);
        CHECK(call(name, {0, 0, 0, 0, 0, 0, 0}) == 0);
        CHECK(call(name, {100, 200, 1000, 400, 300, 2000, 600, -1}) == 0);
    }
    CHECK(call(u"AMBFIPRIVON", {100, 200, 0, 400, 300, 600}) == 0);
    CHECK(call(u"AMBFIPRIVON", {100, 200, 1000, 0, 300, 600}) == 0);
}

TEST_CASE("the ratios are summed in their order") {
    CHECK(call(u"AMBFIPUBOM", {1.4e308, 0.3e308, 1, 1, 0, -1.7e308, 0}) == 0);
    CHECK(call(u"AMBFIPUBOM", {1.4e308, -1.2e308, 1, 1, 0, 1.7e308, 0}) == doctest::Approx(1.7e308));
}

TEST_CASE("the index of a public owned manufacturer takes the market value of the equity") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"AMBFIPUBOM") ==
           Names{u"dWCapital", u"dRE", u"dAst", u"dLiab", u"dEBIT", u"dNetSales", u"dMVEqty", u"lDecPlace"}));
    CHECK((parameters_of(u"AMBFIPRIVOM") ==
           Names{u"dWCapital", u"dRE", u"dAst", u"dLiab", u"dEBIT", u"dNetSales", u"dEqty", u"lDecPlace"}));
    CHECK((parameters_of(u"AMBFIPRIVON") ==
           Names{u"dWCapital", u"dRE", u"dAst", u"dLiab", u"dEBIT", u"dEqty", u"lDecPlace"}));
}

TEST_CASE("the indices are described in their own letter case") {
    CHECK((find_function(u"AMBFIPRIVON")->description ==
           u"Returns the Altman's Measure for Business Failure Index For Private Owned Nonmanufactures Ratio."));
}
