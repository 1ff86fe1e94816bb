#include "platform/posix/ini_text.hpp"

#include <doctest/doctest.h>

#include <vector>

using namespace qor;
using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

struct Row {
    std::u16string text;
    std::string_view written;
};

const std::u16string lone_high(1, char16_t{0xD83D});
const std::u16string lone_low(1, char16_t{0xDE00});
const std::u16string apart = {char16_t{0xD83D}, u'x', char16_t{0xDE00}};

}  // namespace

TEST_CASE("a value is written readably and comes back") {
    for (const auto& [text, written] : std::vector<Row>{
             {u"", ""},
             {u"-1", "-1"},
             {u"plain text, \"quoted\"; #1 = [x] 100%", "plain text, \"quoted\"; #1 = [x] 100%"},
             {u"# no comment", "# no comment"},
             {u" in  the middle ", "\\sin  the middle\\s"},
             {u" ", "\\s"},
             {u"  ", "\\s\\s"},
             {u"   ", "\\s \\s"},
             {u"one\ntwo\r\n\tthree", "one\\ntwo\\r\\n\\tthree"},
             {u"C:\\new\\table", "C:\\\\new\\\\table"},
             {u"\\", "\\\\"},
             {u"a\0b\x1B\x7F"s, "a\\u0000b\\u001B\\u007F"},
             {u"\u00E9\u20AC\U0001F600", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"},
             {apart, "\\uD83Dx\\uDE00"},
             {lone_low + lone_high, "\\uDE00\\uD83D"},
         }) {
        CHECK(escape_value(text) == written);
        CHECK((unescape_value(written) == text));
    }
}

TEST_CASE("what is no escape in a value is read as it stands") {
    CHECK((unescape_value("\\q") == u"\\q"));
    CHECK((unescape_value("end\\") == u"end\\"));
    CHECK((unescape_value("\\u12") == u"\\u12"));
    CHECK((unescape_value("\\u12G4") == u"\\u12G4"));
    CHECK((unescape_value("\\u00e9") == u"\u00E9"));
    CHECK((unescape_value(" kept ") == u" kept "));
}

TEST_CASE("a name is written readably and comes back") {
    for (const auto& [text, written] : std::vector<Row>{
             {u"chkT1AutoAdjWin", "chkT1AutoAdjWin"},
             {u"Tools\\Cell Color", "Tools\\Cell Color"},
             {u"a=b", "a%3Db"},
             {u"[x]", "%5Bx%5D"},
             {u"100%", "100%25"},
             {u"#1 #2", "%231 #2"},
             {u" a b ", "%20a b%20"},
             {u"a\tb\nc\0"s, "a%09b%0Ac%00"},
             {u"\u00C4pfel \U0001F600", "\xC3\x84pfel \xF0\x9F\x98\x80"},
             {lone_high, "%uD83D"},
         }) {
        CHECK(escape_name(text) == written);
        CHECK((unescape_name(written) == text));
    }
}

TEST_CASE("what is no escape in a name is read as it stands") {
    CHECK((unescape_name("100%") == u"100%"));
    CHECK((unescape_name("%zz") == u"%zz"));
    CHECK((unescape_name("%u12") == u"%u12"));
    CHECK((unescape_name("a%3db") == u"a=b"));
}
