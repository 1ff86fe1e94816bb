#include "platform/file_address.hpp"

#include <doctest/doctest.h>

#include <vector>

#include "platform/text.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace std::string_view_literals;

namespace {

struct Row {
    std::u16string_view path;
    std::string_view address;
};

std::string address_of(std::u16string_view path) {
    return to_utf8(address_of_path(path));
}

std::string path_of(std::u16string_view address) {
    return to_utf8(path_of_address(address));
}

}  // namespace

TEST_CASE("a path becomes an address and comes back") {
    for (const auto& [path, address] : std::vector<Row>{
             {u"/", "file:///"},
             {u"/data/plan.ods", "file:///data/plan.ods"},
             {u"/data/", "file:///data/"},
             {u"/my books/a  b.ods", "file:///my%20books/a%20%20b.ods"},
             {u"/\u00C4rger/gr\u00F6\u00DFer \u20AC.ods", "file:///%C3%84rger/gr%C3%B6%C3%9Fer%20%E2%82%AC.ods"},
             {u"/\U0001F600", "file:///%F0%9F%98%80"},
             {u"/100%", "file:///100%25"},
             {u"/a%20b", "file:///a%2520b"},
             {u"/a#b?c;d[e]^`{|}\\\"<>", "file:///a%23b%3Fc%3Bd%5Be%5D%5E%60%7B%7C%7D%5C%22%3C%3E"},
             {u"/-._~!$&'()*+,=:@", "file:///-._~!$&'()*+,=:@"},
             {u"/a\n\x7F", "file:///a%0A%7F"},
             {u"/a/../b/.", "file:///a/../b/."},
             {u"/~/a", "file:///~/a"},
         }) {
        CAPTURE(address);
        CHECK(address_of(path) == address);
        CHECK(path_of(from_utf8(address)) == to_utf8(path));
    }
}

TEST_CASE("a relative path becomes a relative address and comes back") {
    for (const auto& [path, address] : std::vector<Row>{
             {u"plan.ods", "plan.ods"},
             {u"my books/\u00E4.ods", "my%20books/%C3%A4.ods"},
             {u"./a", "./a"},
             {u"../a%", "../a%25"},
         }) {
        CAPTURE(address);
        CHECK(address_of(path) == address);
        CHECK(path_of(from_utf8(address)) == to_utf8(path));
    }
}

TEST_CASE("slashes that are repeated are one") {
    CHECK(address_of(u"//data///plan.ods//") == "file:///data/plan.ods/");
    CHECK(address_of(u"a//b") == "a/b");
    CHECK(address_of(u"/a://b") == "file:///a:/b");
}

TEST_CASE("an address, and no path at all, have no other address") {
    for (const std::u16string_view text :
         {u""sv, u"file:///a b"sv, u"FILE:///a"sv, u"https://example.org/a b"sv, u"private:factory/scalc"sv}) {
        CAPTURE(to_utf8(text));
        CHECK(address_of(text) == to_utf8(text));
    }
}

TEST_CASE("what is no address of a file here stays as it is") {
    for (const std::u16string_view text :
         {u""sv, u"/a%20b"sv, u"https://example.org/a%20b"sv, u"mailto:someone@example.org"sv,
          u"private:factory/scalc"sv, u"file://other/a%20b"sv, u"file:///a%20b#part"sv, u"file:///a%20b?query"sv,
          u"file:///a%2Fb"sv, u"file:///a%2fb"sv, u"file:///a%00b"sv, u"file:"sv, u"file://"sv, u"a%2Fb"sv}) {
        CAPTURE(to_utf8(text));
        CHECK(path_of(text) == to_utf8(text));
    }
}

TEST_CASE("addresses that others have written") {
    CHECK(path_of(u"file:///%e4%bd%a0/%7e") == "/\xE4\xBD\xA0/~");  // small digits, an escape that need not be
    CHECK(path_of(u"file:///a b/\u00E4") == "/a b/\xC3\xA4");
    CHECK(path_of(u"FILE:///a%3Bb") == "/a;b");
    CHECK(path_of(u"file://localhost/a%20b") == "/a b");
    CHECK(path_of(u"file://127.0.0.1/a") == "/a");
    CHECK(path_of(u"file:/a%20b") == "/a b");
    CHECK(path_of(u"file:///a+b") == "/a+b");
    CHECK(path_of(u"file:///a//b/") == "/a//b/");
}

TEST_CASE("what only looks like an escape is read as it stands") {
    CHECK(path_of(u"file:///100%") == "/100%");
    CHECK(path_of(u"file:///a%2") == "/a%2");
    CHECK(path_of(u"file:///a%zz%g0%0g") == "/a%zz%g0%0g");
    CHECK(path_of(u"file:///%E4.ods") == "/%E4.ods");      // no UTF-8
    CHECK(path_of(u"file:///%C0%AF") == "/%C0%AF");        // overlong
    CHECK(path_of(u"file:///%ED%A0%80") == "/%ED%A0%80");  // a surrogate
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("any path survives the way through its address") {
    CHECK(rc::check([](const std::vector<char32_t>& code_points) {
        std::u16string path = u"/";
        for (const char32_t raw : code_points) {
            const char32_t code_point = 1 + raw % 0x10FFFF;
            if (!is_surrogate(code_point)) append_code_point(path, code_point);
        }
        for (std::size_t place = 0; (place = path.find(u"//", place)) != path.npos;) path.erase(place, 1);
        RC_ASSERT((path_of_address(address_of_path(path)) == path));
    }));
}
#endif
