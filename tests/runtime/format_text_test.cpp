#include "runtime/format_text.hpp"

#include <doctest/doctest.h>

#include "tests/runtime/format_rows.hpp"

using namespace qor;
using namespace qor::test;

TEST_CASE("texts by places") {
    const Country country(english_locale());
    check_formats({
        {u"ab", u"@@@@", u"  ab"},
        {u"ab", u"&&&&", u"ab"},
        {u"ab", u"!@@@@", u"ab  "},
        {u"abcd", u"@@", u"abcd"},
        {u"abcd", u"!@-@", u"a-bcd"},
        {u"abcd", u"@-@", u"abc-d"},
        {u"ab", u"@@-@@", u"  -ab"},
        {u"aBc", u"<", u"abc"},
        {u"aBc", u">", u"ABC"},
        {u"aBc", u">@@@@\"x\"", u" ABCx"},
        {u"ä", u">", u"Ä"},
        {u"", u"@;\"nothing\"", u"nothing"},
        {Null{}, u"@;\"nothing\"", u"nothing"},
        {u"abc", u"@;\"nothing\"", u"abc"},
        {12.5, u"@@@@@@", u"  12.5"},
        {true, u"<", u"true"},
    });
}

TEST_CASE("texts by patterns of numbers") {
    const Country country(english_locale());
    check_formats({
        {u"12.345", u"0.0", u"12.3"},
        {u"$1,000", u"0", u"1000"},
        {u"abc", u"0.0", u"abc"},
        {u"abc", u"Currency", u"abc"},
        {u"abc", u"General Number", u"abc"},
        {u"007", u"General Number", u"7"},
    });
}
