#include <doctest/doctest.h>

#include <string>

#include "fresh_store.hpp"

using namespace qor;
using test::FreshStore;

namespace {

std::u16string absent_or(const std::optional<std::u16string>& value) {
    return value.value_or(u"(absent)");
}

}  // namespace

TEST_CASE_FIXTURE(FreshStore, "settings: a value is absent until it is written") {
    CHECK_FALSE(store.read(u"Options", u"chkT1AutoAdjWin").has_value());
    CHECK(store.write(u"Options", u"chkT1AutoAdjWin", u"-1"));
    CHECK((absent_or(store.read(u"Options", u"chkT1AutoAdjWin")) == u"-1"));
    CHECK((absent_or(another.read(u"Options", u"chkT1AutoAdjWin")) == u"-1"));
    CHECK_FALSE(store.read(u"Options", u"chkT1").has_value());
    CHECK_FALSE(store.read(u"CellColor", u"chkT1AutoAdjWin").has_value());
    CHECK_FALSE(store.read(u"", u"chkT1AutoAdjWin").has_value());
}

TEST_CASE_FIXTURE(FreshStore, "settings: an empty value is there") {
    CHECK(store.write(u"Options", u"txtT2DefaultSaveFolder", u""));
    REQUIRE(store.read(u"Options", u"txtT2DefaultSaveFolder").has_value());
    CHECK(store.read(u"Options", u"txtT2DefaultSaveFolder")->empty());
}

TEST_CASE_FIXTURE(FreshStore, "settings: a section has an unnamed value, and the root has values") {
    CHECK(store.write(u"Options", u"", u"unnamed"));
    CHECK(store.write(u"Options", u"*", u"starred"));
    CHECK(store.write(u"", u"Root", u"yes"));
    CHECK((absent_or(store.read(u"Options", u"")) == u"unnamed"));
    CHECK((absent_or(store.read(u"Options", u"*")) == u"starred"));
    CHECK((absent_or(store.read(u"", u"Root")) == u"yes"));
}

TEST_CASE_FIXTURE(FreshStore, "settings: empty parts of a section's path do not count") {
    CHECK(store.write(u"\\A\\\\B\\", u"n", u"1"));
    CHECK((absent_or(store.read(u"A\\B", u"n")) == u"1"));
    CHECK(store.write(u"\\\\", u"n", u"root"));
    CHECK((absent_or(store.read(u"", u"n")) == u"root"));
}

TEST_CASE_FIXTURE(FreshStore, "settings: names are found in any case") {
    CHECK(store.write(u"Options", u"chkT1", u"1"));
    CHECK((absent_or(store.read(u"oPTIONS", u"CHKt1")) == u"1"));
    CHECK(store.write(u"OPTIONS", u"\u00C4", u"4"));
    CHECK(store.write(u"OPTIONS", u"\u00E4", u"5"));
    CHECK((absent_or(store.read(u"Options", u"\u00C4")) == u"5"));
}

TEST_CASE_FIXTURE(FreshStore, "settings: any text is kept") {
    using namespace std::string_literals;
    const std::u16string long_text(10'000, u'\u00E9');
    const std::u16string awkward = u"a\0b=[c]\r\n\t%u0041 \\n \xD83D"s;
    for (const std::u16string& text : {long_text, awkward, std::u16string(u" "), std::u16string(1, u'\0')}) {
        CHECK(store.write(u"Options", u"text", text));
        CHECK((absent_or(store.read(u"Options", u"text")) == text));
    }
}

TEST_CASE_FIXTURE(FreshStore, "settings: a value is erased, and once only") {
    CHECK_FALSE(store.erase(u"Options", u"a"));
    CHECK(store.write(u"Options", u"a", u"1"));
    CHECK(store.write(u"Options", u"", u"unnamed"));
    CHECK_FALSE(store.erase(u"Options", u"b"));
    CHECK_FALSE(store.erase(u"Other", u"a"));
    CHECK(store.erase(u"OPTIONS", u"A"));
    CHECK_FALSE(store.read(u"Options", u"a").has_value());
    CHECK_FALSE(store.erase(u"Options", u"a"));
    CHECK((absent_or(store.read(u"Options", u"")) == u"unnamed"));
    CHECK(store.erase(u"Options", u""));
    CHECK_FALSE(store.read(u"Options", u"").has_value());
}

TEST_CASE_FIXTURE(FreshStore, "settings: a section is erased with its values unless sections are nested in it") {
    CHECK_FALSE(store.erase_section(u"A"));
    CHECK(store.write(u"A", u"n", u"1"));
    CHECK(store.write(u"A\\B", u"n", u"2"));
    CHECK(store.write(u"AB", u"n", u"3"));
    CHECK_FALSE(store.erase_section(u"a"));
    CHECK_FALSE(store.erase_section(u"B"));
    CHECK((absent_or(store.read(u"A", u"n")) == u"1"));
    CHECK(store.erase_section(u"a\\b"));
    CHECK(store.erase_section(u"a"));
    CHECK_FALSE(store.read(u"A", u"n").has_value());
    CHECK_FALSE(store.erase_section(u"A"));
    CHECK((absent_or(store.read(u"AB", u"n")) == u"3"));
}
