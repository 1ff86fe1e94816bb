#include <doctest/doctest.h>

#include <limits>

#include "tests/functions/call.hpp"

using namespace qor;
using test::call;
using test::parameters_of;

namespace {
constexpr double largest = std::numeric_limits<double>::max();
}

TEST_CASE("a control variance is the sum of its two parts") {
    for (const std::u16string_view name : {u"FFOCV", u"VFOCV", u"LCV", u"MCV", u"SCV"}) {
        CHECK(call(name, {-100, 30}) == -70);
        CHECK(call(name, {0.25, 0.125, 2}) == 0.38);
        CHECK(call(name, {largest, largest}) == 0);
        CHECK(call(name, {1, 2, -1}) == 0);
    }
}

TEST_CASE("an overhead variance is the first amount less the second") {
    for (const std::u16string_view name : {u"FFOSV", u"FFOVV", u"VFOSV", u"VFOVV"}) {
        CHECK(call(name, {5, 8}) == -3);
        CHECK(call(name, {largest, -largest}) == 0);
    }
}

TEST_CASE("a spending or price variance is favourable below the standard price") {
    CHECK(call(u"LSV", {100, 5, 6}) == -100);
    for (const std::u16string_view name : {u"LSV", u"MSV", u"SPV"}) {
        CHECK(call(name, {100, 5, 4.5}) == 50);
        CHECK(call(name, {0, 5, 4.5}) == 0);
        CHECK(call(name, {0, largest, -largest}) == 0);
        CHECK(call(name, {1e200, 1e200, 0}) == 0);
    }
}

TEST_CASE("a volume variance is favourable below the standard input") {
    CHECK(call(u"LVV", {5, 90, 100}) == -50);
    for (const std::u16string_view name : {u"LVV", u"MVV", u"SVV"}) {
        CHECK(call(name, {5, 90, 80}) == 50);
        CHECK(call(name, {0.5, 3, 0, 0}) == 2);
        CHECK(call(name, {1e200, 1e200, 0}) == 0);
    }
}

TEST_CASE("a mix, yield or market variance is actual less standard") {
    for (const std::u16string_view name : {u"DLMV", u"DMMV"}) {
        CHECK(call(name, {0.5, 0.25, 100, 9, 7}) == 50);
        CHECK(call(name, {0.25, 0.5, 100, 9, 7}) == -50);
        CHECK(call(name, {0.5, 0.25, 100, 7, 9}) == -50);
    }
    for (const std::u16string_view name : {u"DLYV", u"DMYV"}) {
        CHECK(call(name, {30, 20, 1.5}) == 15);
        CHECK(call(name, {20, 30, 1.5}) == -15);
    }
    CHECK(call(u"MRKTSHRV", {0.25, 0.5, 100, 3}) == -75);
    CHECK(call(u"MRKTSZV", {0.25, 100, 140, 3}) == -30);
}

TEST_CASE("a variance of more than two factors multiplies from left to right") {
    for (const std::u16string_view name : {u"DLMV", u"DMMV"}) {
        CHECK(call(name, {1e200, 0, 1e200, 1e-200, 0}) == 0);
        CHECK(call(name, {1e-200, 0, 1e200, 1e200, 0}) == doctest::Approx(1e200));
        CHECK(call(name, {1e200, 0, 1e-200, 1e200, 0}) == doctest::Approx(1e200));
    }
    CHECK(call(u"MRKTSHRV", {1e200, 0, 1e200, 1e-200}) == 0);
    CHECK(call(u"MRKTSHRV", {1e-200, 0, 1e200, 1e200}) == doctest::Approx(1e200));
    CHECK(call(u"MRKTSZV", {1e200, 1e200, 0, 1e-200}) == 0);
    CHECK(call(u"MRKTSZV", {1e-200, 1e200, 0, 1e200}) == doctest::Approx(1e200));
}

TEST_CASE("the parameters of variances bear the names of the interface") {
    using Names = std::vector<std::u16string_view>;
    CHECK((parameters_of(u"FFOVV") == Names{u"dAppldSFFO", u"dSFFO", u"lDecPlace"}));
    CHECK((parameters_of(u"VFOVV") == Names{u"dSVFO", u"dNVFO", u"lDecPlace"}));
    CHECK((parameters_of(u"LCV") == Names{u"dLSP", u"dLVV", u"lDecPlace"}));
    CHECK((parameters_of(u"MCV") == Names{u"dMSP", u"dMVV", u"lDecPlace"}));
    CHECK((parameters_of(u"SCV") == Names{u"dSPV", u"dSVV", u"lDecPlace"}));
    CHECK((parameters_of(u"SPV") == Names{u"dActQty", u"dBdgtPrc", u"dActPrc", u"lDecPlace"}));
    CHECK((parameters_of(u"SVV") == Names{u"dBdgtPrc", u"dBdgtQty", u"dActQty", u"lDecPlace"}));
    CHECK((parameters_of(u"MRKTSZV") ==
           Names{u"dBdgtMrktShrPct", u"dActIndstrySVolUnt", u"dBdgtIndstrySVolUnt", u"dBdgtAvgCMPUnt", u"lDecPlace"}));
}
