#include "platform/text.hpp"

#include <doctest/doctest.h>

#include <vector>

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace std::string_literals;
using namespace std::string_view_literals;

TEST_CASE("UTF-16 becomes UTF-8 and comes back") {
    struct Row {
        std::u16string_view text;
        std::string_view bytes;
    };
    for (const auto& [text, bytes] : std::vector<Row>{
             {u"", ""},
             {u"plain", "plain"},
             {u"a\0b"sv, "a\0b"sv},
             {u"\u007F\u0080\u07FF\u0800\uFFFF", "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
             {u"\u00E9\u20AC", "\xC3\xA9\xE2\x82\xAC"},
             {u"\U00010000\U0001F600\U0010FFFF", "\xF0\x90\x80\x80\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF"},
         }) {
        CHECK(to_utf8(text) == bytes);
        CHECK((from_utf8(bytes) == text));
    }
}

TEST_CASE("a surrogate without its partner becomes U+FFFD") {
    const auto text = [](std::initializer_list<char16_t> units) { return std::u16string(units); };
    CHECK(to_utf8(text({0xD800})) == "\xEF\xBF\xBD");
    CHECK(to_utf8(text({0xDC00, u'a'})) ==
          "\xEF\xBF\xBD"
          "a");
    CHECK(to_utf8(text({0xD83D, 0xD83D, 0xDE00})) == "\xEF\xBF\xBD\xF0\x9F\x98\x80");
    CHECK(to_utf8(text({0xDE00, 0xD83D})) == "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_CASE("ill-formed bytes become one U+FFFD for each part that could have begun a code point") {
    CHECK((from_utf8("\x80") == u"\uFFFD"));
    CHECK((from_utf8("a\xFFz") == u"a\uFFFDz"));
    CHECK((from_utf8("\xC0\xAF") == u"\uFFFD\uFFFD"));                      // overlong
    CHECK((from_utf8("\xE0\x80\xAF") == u"\uFFFD\uFFFD\uFFFD"));            // overlong
    CHECK((from_utf8("\xED\xA0\x80") == u"\uFFFD\uFFFD\uFFFD"));            // a surrogate
    CHECK((from_utf8("\xF4\x90\x80\x80") == u"\uFFFD\uFFFD\uFFFD\uFFFD"));  // above U+10FFFF
    CHECK((from_utf8("\xE2\x82") == u"\uFFFD"));                            // cut off
    CHECK((from_utf8("\xF0\x9F\x98z") == u"\uFFFDz"));
    CHECK((from_utf8("\xE2\xE2\x82\xAC") == u"\uFFFD\u20AC"));
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("any well-formed text survives the way through UTF-8") {
    CHECK(rc::check([](const std::vector<char32_t>& code_points) {
        std::u16string text;
        for (const char32_t raw : code_points) {
            const char32_t code_point = raw % 0x110000;
            append_code_point(text, is_surrogate(code_point) ? U'x' : code_point);
        }
        RC_ASSERT(from_utf8(to_utf8(text)) == text);
    }));
}
#endif

TEST_CASE("code points are taken and appended") {
    const std::u16string text = u"a\U0001F600"s + char16_t{0xDE00};
    std::size_t position = 0;
    CHECK(take_code_point(text, position) == U'a');
    CHECK(take_code_point(text, position) == U'\U0001F600');
    CHECK(position == 3);
    CHECK(take_code_point(text, position) == char32_t{0xDE00});
    CHECK(position == 4);

    std::u16string built;
    for (const char32_t code_point : {char32_t{u'a'}, char32_t{0x1F600}, char32_t{0xDE00}})
        append_code_point(built, code_point);
    CHECK((built == text));
}

TEST_CASE("case is mapped one code point for one") {
    CHECK((to_upper(u"abc xyz 09") == u"ABC XYZ 09"));
    CHECK((to_lower(u"ABC XYZ 09") == u"abc xyz 09"));
    CHECK((to_upper(u"\u00E9\u00FC\u00FF\u0161") == u"\u00C9\u00DC\u0178\u0160"));
    CHECK((to_upper(u"\u03B1\u03C9\u03C2") == u"\u0391\u03A9\u03A3"));
    CHECK((to_lower(u"\u0391\u03A9") == u"\u03B1\u03C9"));
    CHECK((to_upper(u"\u0436\u044F\u0451") == u"\u0416\u042F\u0401"));
    CHECK((to_lower(u"\u0416\u042F\u0401") == u"\u0436\u044F\u0451"));
    CHECK((to_upper(u"stra\u00DFe") == u"STRA\u00DFE"));
    CHECK((to_upper(u"\U00010428") == u"\U00010400"));
    CHECK((to_upper(u"\u6F22\u5B57") == u"\u6F22\u5B57"));
    const std::u16string lone(1, char16_t{0xD800});
    CHECK((to_lower(lone) == lone));
}

TEST_CASE("names are equal without regard to case") {
    CHECK(equal_ignoring_case(u"", u""));
    CHECK(equal_ignoring_case(u"Options", u"oPTIONS"));
    CHECK(equal_ignoring_case(u"\u00C4\u0416\u03A3", u"\u00E4\u0436\u03C2"));
    CHECK(equal_ignoring_case(u"\U00010428x", u"\U00010400X"));
    CHECK_FALSE(equal_ignoring_case(u"Options", u"Option"));
    CHECK_FALSE(equal_ignoring_case(u"Option", u"Options"));
    CHECK_FALSE(equal_ignoring_case(u"a", u"\u00E4"));
    CHECK_FALSE(equal_ignoring_case(u"[", u"{"));
    CHECK_FALSE(equal_ignoring_case(u"@", u"`"));
}
