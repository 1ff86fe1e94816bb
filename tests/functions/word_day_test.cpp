#include <doctest/doctest.h>

#include <array>

#include "tests/functions/call.hpp"

using namespace qor;

namespace {

struct Texts {
    std::u16string_view in_form_0;
    std::u16string_view in_form_1;
    std::u16string_view in_form_2;
};

constexpr std::array<Texts, 31> texts{{
    {u"First", u"1ST", u"1ST"},           {u"Second", u"2ND", u"2ND"},         {u"Third", u"3RD", u"3RD"},
    {u"Fourth", u"4TH", u"4TH"},          {u"Fifth", u"5TH", u"5TH"},          {u"Sixth", u"6TH", u"6TH"},
    {u"Seventh", u"7TH", u"7TH"},         {u"Eighth", u"8TH", u"8TH"},         {u"Ninth", u"9TH", u"9TH"},
    {u"Tenth", u"10TH", u"10TH"},         {u"Eleventh", u"11TH", u"11TH"},     {u"Twelfth", u"12TH", u"12TH"},
    {u"Thirteenth", u"13TH", u"13TH"},    {u"Fourteenth", u"14TH", u"14TH"},   {u"Fifteenth", u"15TH", u"15TH"},
    {u"Sixteenth", u"16TH", u"16TH"},     {u"Seventeenth", u"17TH", u"17TH"},  {u"Eighteenth", u"18TH", u"18TH"},
    {u"Nineteenth", u"19TH", u"19TH"},    {u"Twentieth", u"20TH", u"20TH"},    {u"2First", u"Twenty-1ST", u"21ST"},
    {u"2Second", u"Twenty-2ND", u"22ND"}, {u"2Third", u"Twenty-3RD", u"23RD"}, {u"2Fourth", u"Twenty-4TH", u"24TH"},
    {u"2Fifth", u"Twenty-5TH", u"25TH"},  {u"2Sixth", u"Twenty-6TH", u"26TH"}, {u"2Seventh", u"Twenty-7TH", u"27TH"},
    {u"2Eighth", u"Twenty-8TH", u"28TH"}, {u"2Ninth", u"Twenty-9TH", u"29TH"}, {u"Thirtieth", u"30TH", u"30TH"},
    {u"3First", u"Thirty-1ST", u"31ST"},
}};

}  // namespace

TEST_CASE("every day of the month has its text in every form") {
    for (std::int32_t day = 1; day <= 31; ++day) {
        CAPTURE(day);
        const Texts& expected = texts[static_cast<std::size_t>(day - 1)];
        const Variant january = Date{37986.0 + day};  // of 2004
        const auto shown = [&](std::vector<Variant> arguments) {
            const Variant result = test::result_of(u"EWORDDAY", std::move(arguments));
            REQUIRE(result.is(Variant::Kind::text));
            return *result.get_if<std::u16string>();
        };
        CHECK((shown({january}) == expected.in_form_0));
        CHECK((shown({january, 0}) == expected.in_form_0));
        CHECK((shown({january, 1}) == expected.in_form_1));
        for (const std::int32_t form : {2, 3, -1, 2147483647}) CHECK((shown({january, form}) == expected.in_form_2));
    }
}
