#include "runtime/like.hpp"

#include <doctest/doctest.h>

#include <chrono>
#include <string>
#include <vector>

#include "runtime/trim.hpp"
#include "tests/support/raised.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using test::raised;

namespace {

// Straight from the definition, in exponential time.
bool matches_by_trying(std::u16string_view text, std::u16string_view pattern) {
    if (pattern.empty()) return text.empty();
    if (pattern.front() == u'*') {
        for (std::size_t taken = 0; taken <= text.size(); ++taken) {
            if (matches_by_trying(text.substr(taken), pattern.substr(1))) return true;
        }
        return false;
    }
    if (pattern.starts_with(u"[ab]")) {
        return !text.empty() && (text[0] == u'a' || text[0] == u'b') &&
               matches_by_trying(text.substr(1), pattern.substr(4));
    }
    if (pattern.starts_with(u"[!a]")) {
        return !text.empty() && text[0] != u'a' && matches_by_trying(text.substr(1), pattern.substr(4));
    }
    if (text.empty()) return false;
    const bool is_match = pattern.front() == u'?' || (pattern.front() == u'#' && text[0] >= u'0' && text[0] <= u'9') ||
                          pattern.front() == text[0];
    return is_match && matches_by_trying(text.substr(1), pattern.substr(1));
}

}  // namespace

TEST_CASE("a text is like a pattern") {
    struct Row {
        std::u16string_view text;
        std::u16string_view pattern;
        bool is_like;
    };
    for (const Row& row : std::vector<Row>{
             {u"", u"", true},
             {u"a", u"", false},
             {u"", u"*", true},
             {u"", u"?", false},
             {u"abc", u"abc", true},
             {u"abc", u"ABC", false},
             {u"abc", u"a?c", true},
             {u"abc", u"a*", true},
             {u"abc", u"*c", true},
             {u"abc", u"*b*", true},
             {u"abc", u"a*b", false},
             {u"abc", u"**a**c**", true},
             {u"a1", u"a#", true},
             {u"ab", u"a#", false},
             {u"a\u0661", u"a#", false},
             {u"b", u"[abc]", true},
             {u"d", u"[abc]", false},
             {u"d", u"[!abc]", true},
             {u"b", u"[!abc]", false},
             {u"", u"[!a]", false},
             {u"m", u"[a-z]", true},
             {u"M", u"[a-z]", false},
             {u"5", u"[!0-9]", false},
             {u"x", u"[a-cx-z]", true},
             {u"-", u"[-a]", true},
             {u"-", u"[a-]", true},
             {u"b", u"[a-]", false},
             {u"-", u"[!-a]", false},
             {u"*", u"[*]", true},
             {u"x", u"[*]", false},
             {u"?", u"[?]", true},
             {u"#", u"[#]", true},
             {u"[", u"[[]", true},
             {u"]", u"]", true},
             {u"a]", u"a]", true},
             {u"!", u"!", true},
             {u"!", u"[!]", true},
             {u"ab", u"a[]b", true},
             {u"", u"[]", true},
             {u"a!", u"a[a!]", true},
             {u"aM5b", u"a[L-P]#[!c-e]", true},
             {u"BAT123khg", u"B?T*", true},
             {u"CAT123khg", u"B?T*", false},
             {u"aBBBa", u"a*a", true},
             {u"F", u"[!A-Z]", false},
             {u"a2a", u"a#a", true},
             {u"mississippi", u"m*iss*ip*i", true},
             {u"mississippi", u"m*iss*ipx*", false},
         }) {
        CAPTURE(std::string(row.text.begin(), row.text.end()));
        CAPTURE(std::string(row.pattern.begin(), row.pattern.end()));
        CHECK(like(row.text, row.pattern) == row.is_like);
    }
}

TEST_CASE("a set that is not well formed is an invalid pattern") {
    for (const std::u16string_view pattern : {u"[", u"a[b", u"[z-a]", u"x[a-c"}) {
        CHECK(raised([&] { return like(u"b", pattern); }) == 93);
    }
}

TEST_CASE("many runs do not make it slow") {
    std::u16string pattern;
    for (int run = 0; run < 50; ++run) pattern += u"*a";
    const auto start = std::chrono::steady_clock::now();
    CHECK_FALSE(like(std::u16string(10000, u'a'), pattern + u"*b"));
    CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(5));
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("it is like what trying every way finds") {
    CHECK(rc::check([] {
        constexpr int most = 10;
        const auto text =
            *rc::gen::resize(most, rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab1"))));
        const auto pieces =
            *rc::gen::resize(most, rc::gen::container<std::vector<std::string>>(
                                       rc::gen::element<std::string>("a", "b", "1", "?", "*", "#", "[ab]", "[!a]")));
        std::u16string pattern;
        for (const std::string& piece : pieces) pattern.append(piece.begin(), piece.end());
        const std::u16string wide(text.begin(), text.end());
        RC_ASSERT(like(wide, pattern) == matches_by_trying(wide, pattern));
    }));
    CHECK(rc::check(
        "any code units", [](const std::vector<std::uint16_t>& text, const std::vector<std::uint16_t>& pattern) {
            const std::int32_t number = raised([&] {
                return like(std::u16string(text.begin(), text.end()), std::u16string(pattern.begin(), pattern.end()));
            });
            RC_ASSERT(number == 0 || number == 93);
        }));
}
#endif

TEST_CASE("trimming takes spaces alone") {
    CHECK((trim(u"  a b\t ") == u"a b\t"));
    CHECK((trim_left(u"  a ") == u"a "));
    CHECK((trim_right(u" a  ") == u" a"));
    CHECK(trim(u"   ").empty());
    CHECK(trim(u"").empty());
}
