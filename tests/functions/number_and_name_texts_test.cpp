#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "tests/functions/call.hpp"

using namespace qor;

namespace {

std::string text_of(std::u16string_view function, std::vector<Variant> arguments) {
    const Variant result = find_function(function)->invoke(std::move(arguments));
    REQUIRE(result.get_if<std::u16string>());
    return to_utf8(*result.get_if<std::u16string>());
}

}  // namespace

TEST_CASE("an ordinal takes the suffix of its last digits") {
    const auto ordinal = [](Variant number) { return text_of(u"ORDINAL", {std::move(number)}); };
    CHECK(ordinal(0) == "0TH");
    CHECK(ordinal(1) == "1ST");
    CHECK(ordinal(2) == "2ND");
    CHECK(ordinal(3) == "3RD");
    CHECK(ordinal(4) == "4TH");
    CHECK(ordinal(9) == "9TH");
    CHECK(ordinal(10) == "10TH");
    CHECK(ordinal(11) == "11TH");
    CHECK(ordinal(12) == "12TH");
    CHECK(ordinal(13) == "13TH");
    CHECK(ordinal(14) == "14TH");
    CHECK(ordinal(22) == "22ND");
    CHECK(ordinal(101) == "101ST");
    CHECK(ordinal(111) == "111TH");
    CHECK(ordinal(113) == "113TH");
    CHECK(ordinal(-1) == "-1ST");
    CHECK(ordinal(1.5) == "1.5TH");
    CHECK(ordinal(2.13) == "2.13TH");
    CHECK(ordinal(2.2) == "2.2ND");
    CHECK(ordinal(1e21) == "1E+21ST");
    CHECK(ordinal(u"3") == "3RD");
}

TEST_CASE("a name is its parts in order, each with a blank behind it") {
    const auto name = [](std::vector<Variant> arguments) { return text_of(u"FORMATNAME", std::move(arguments)); };
    CHECK(name({u"Ann", u"Lee"}) == "Ann Lee ");
    CHECK(name({u"Ann", u"Lee", u"May"}) == "Ann May Lee ");
    CHECK(name({u"Ann", u"Lee", u"May", u"Dr.", u"PhD"}) == "Dr. Ann May Lee PhD ");
    CHECK(name({u"Ann", u"Lee", Missing{}, u"Ms"}) == "Ms Ann Lee ");
    CHECK(name({u"", u"Lee"}) == "Lee ");
    CHECK(name({u"   ", u""}) == "");
}

TEST_CASE("a title of one letter is dropped, any other part of one letter stays") {
    const auto name = [](std::vector<Variant> arguments) { return text_of(u"FORMATNAME", std::move(arguments)); };
    CHECK(name({u"Ann", u"Lee", u"", u"X", u"Jr"}) == "Ann Lee Jr ");
    CHECK(name({u"Ann", u"Lee", u"", u"  X  "}) == "Ann Lee ");
    CHECK(name({u"A", u"B", u"C", u"Mr", u"D"}) == "Mr A C B D ");
}

TEST_CASE("the parts of a name are not trimmed") {
    CHECK(text_of(u"FORMATNAME", {u" Ann", u"Lee ", u"", u" Dr"}) == " Dr  Ann Lee  ");
}
