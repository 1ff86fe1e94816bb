#include "platform/ini_settings_store.hpp"

#include <doctest/doctest.h>
#include <rapidcheck.h>
#include <stdlib.h>

#include <vector>

#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;
using namespace std::string_literals;

namespace {

constexpr auto private_folder = std::filesystem::perms::owner_all;
constexpr auto private_file = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;

struct Fixture {
    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "settings.ini";
    IniSettingsStore store{file};
};

std::u16string absent_or(const std::optional<std::u16string>& value) {
    return value.value_or(u"(absent)");
}

// Half of the units are drawn from those that a grammar of lines stumbles over, the rest from all there are.
rc::Gen<std::u16string> any_text() {
    const auto awkward = rc::gen::element<char16_t>(u' ', u'\t', u'\n', u'\r', u'\0', u'\\', u'=', u'[', u']', u'%',
                                                    u'#', u';', u'"', u'*', u'u', u's', u'0', u'D', u'\u0085',
                                                    u'\u2028', u'\uFEFF', u'\uFFFF', 0xD83D, 0xDE00);
    const auto any = rc::gen::map(rc::gen::arbitrary<std::uint16_t>(),
                                  [](std::uint16_t unit) { return static_cast<char16_t>(unit); });
    return rc::gen::container<std::u16string>(rc::gen::oneOf(awkward, any));
}

}  // namespace

TEST_CASE_FIXTURE(Fixture, "reading makes no file") {
    CHECK_FALSE(store.read(u"Options", u"chkT1AutoAdjWin").has_value());
    CHECK(folder.names().empty());
}

TEST_CASE_FIXTURE(Fixture, "the file reads as its user would write it") {
    CHECK(store.write(u"Options", u"chkT1AutoAdjWin", u"-1"));
    CHECK(store.write(u"Options", u"txtT2DefaultSaveFolder", u"/home/me/My Reports"));
    CHECK(store.write(u"Tools\\Cell Color", u"BackColor", u"&H8000000F&"));
    CHECK(store.write(u"Options", u"", u"unnamed"));
    CHECK(store.write(u"", u"Root", u"yes"));
    CHECK(store.write(u"Options", u"*", u"starred"));
    CHECK(content_of(file) ==
          "[Options]\n"
          "chkT1AutoAdjWin=-1\n"
          "txtT2DefaultSaveFolder=/home/me/My Reports\n"
          "*=unnamed\n"
          "%2A=starred\n"
          "\n"
          "[Tools\\Cell Color]\n"
          "BackColor=&H8000000F&\n"
          "\n"
          "[\\]\n"
          "Root=yes\n");
    CHECK((absent_or(store.read(u"Options", u"")) == u"unnamed"));
    CHECK((absent_or(store.read(u"Options", u"*")) == u"starred"));
    CHECK((absent_or(store.read(u"", u"Root")) == u"yes"));
}

TEST_CASE_FIXTURE(Fixture, "a section stands in the file once, however its path is written") {
    CHECK(store.write(u"\\A\\\\B\\", u"n", u"1"));
    CHECK(store.write(u"A\\B", u"n", u"2"));
    CHECK(content_of(file) == "[A\\B]\nn=2\n");
}

TEST_CASE_FIXTURE(Fixture, "names are found in any case and keep the spelling that they have") {
    CHECK(store.write(u"Options", u"chkT1", u"1"));
    CHECK((absent_or(store.read(u"oPTIONS", u"CHKt1")) == u"1"));
    CHECK(store.write(u"OPTIONS", u"CHKT1", u"2"));
    CHECK(store.write(u"options", u"other", u"3"));
    CHECK(store.write(u"OPTIONS", u"\u00C4", u"4"));
    CHECK(store.write(u"OPTIONS", u"\u00E4", u"5"));
    CHECK(content_of(file) == "[Options]\nchkT1=2\nother=3\n\xC3\x84=5\n");
}

TEST_CASE_FIXTURE(Fixture, "a section or name that a user spelled twice counts where it stands first") {
    put(file, "[Options]\na=1\nA=2\n\n[OPTIONS]\na=3\nb=4\n");
    CHECK((absent_or(store.read(u"options", u"a")) == u"1"));
    CHECK((absent_or(store.read(u"options", u"b")) == u"4"));
    CHECK(store.write(u"options", u"B", u"5"));
    CHECK(content_of(file) == "[Options]\na=1\nA=2\n\n[OPTIONS]\na=3\nb=5\n");
    CHECK(store.erase(u"options", u"a"));
    CHECK(content_of(file) == "[Options]\n\n[OPTIONS]\nb=5\n");
}

TEST_CASE_FIXTURE(Fixture, "what a user adds to the file stays") {
    put(file, "# mine\n\n[Options]\n# why\nchkT1=0\ntitle[de]=Titel\nunknown=kept\n\n[Other]\nx=1\n");
    CHECK(store.write(u"Options", u"chkT1", u"-1"));
    CHECK(content_of(file) == "# mine\n\n[Options]\n# why\nchkT1=-1\ntitle[de]=Titel\nunknown=kept\n\n[Other]\nx=1\n");
}

TEST_CASE_FIXTURE(Fixture, "a comment stays with the section or the value that it stands above") {
    put(file,
        "# mine\n# two lines\n\n# first\n[First]\na=1\n# of the first\n\n\n#of the second\n# two lines\n[Second]\n"
        "# of b\nb=2\n\n[First]\nc=3\n# at the end\n");
    CHECK(store.write(u"First", u"new", u"4"));
    CHECK(content_of(file) ==
          "# mine\n# two lines\n\n# first\n[First]\na=1\n# of the first\nc=3\n# at the end\nnew=4\n\n"
          "#of the second\n# two lines\n[Second]\n# of b\nb=2\n");
    CHECK(store.write(u"Third", u"d", u"5"));
    CHECK(store.write(u"Second", u"e", u"6"));
    CHECK(store.erase(u"First", u"c"));
    CHECK(content_of(file) ==
          "# mine\n# two lines\n\n# first\n[First]\na=1\n# of the first\n# at the end\nnew=4\n\n"
          "#of the second\n# two lines\n[Second]\n# of b\nb=2\ne=6\n\n[Third]\nd=5\n");
}

TEST_CASE_FIXTURE(Fixture, "a file from another editor is read") {
    put(file, "\xEF\xBB\xBF[Options]\r\nchkT1 = -1\r\n");
    CHECK((absent_or(store.read(u"Options", u"chkT1")) == u"-1"));
    put(file, "");
    CHECK_FALSE(store.read(u"Options", u"chkT1").has_value());
    CHECK(store.write(u"Options", u"chkT1", u"0"));
    CHECK(content_of(file) == "[Options]\nchkT1=0\n");
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});
}

TEST_CASE_FIXTURE(Fixture, "a name that the file's reader has a meaning of its own for is kept too") {
    CHECK(store.write(u"Options", u"Encoding", u"ANSI"));
    CHECK((absent_or(store.read(u"Options", u"Encoding")) == u"ANSI"));
    CHECK((absent_or(store.read(u"Options", u"encoding")) == u"ANSI"));
    CHECK(store.write(u"Options", u"ENCODING", u"UTF-16"));
    CHECK(content_of(file) == "[Options]\n%45ncoding=UTF-16\n");
}

TEST_CASE("any text comes back from any section under any name") {
    const TemporaryFolder folder;
    const auto file = folder.path / "settings.ini";
    CHECK(rc::check([&] {
        std::filesystem::remove(file);
        IniSettingsStore store(file);
        const auto section = *any_text();
        const auto name = *any_text();
        const auto value = *any_text();
        RC_ASSERT(store.write(u"Other", u"before", u"1"));
        RC_ASSERT(store.write(section, name, value));
        RC_ASSERT(store.write(u"Other", u"after", u"2"));
        RC_ASSERT(store.read(section, name) == value);
        RC_ASSERT(store.read(u"Other", u"before") == u"1"s);
        RC_ASSERT(store.read(u"Other", u"after") == u"2"s);
        RC_ASSERT(store.erase(section, name));
        RC_ASSERT(!store.read(section, name).has_value());
        RC_ASSERT(store.read(u"Other", u"before") == u"1"s);
    }));
    CHECK_FALSE(std::filesystem::exists(file.native() + ".bad"));
}

TEST_CASE_FIXTURE(Fixture, "a section stays when its last value is erased") {
    CHECK(store.write(u"Options", u"a", u"1"));
    CHECK(store.write(u"Options", u"", u"unnamed"));
    CHECK(store.erase(u"OPTIONS", u"A"));
    CHECK(store.erase(u"Options", u""));
    CHECK(content_of(file) == "[Options]\n");
}

TEST_CASE_FIXTURE(Fixture, "a section goes from the file with its values, and the root as well") {
    CHECK(store.write(u"A", u"n", u"1"));
    CHECK(store.write(u"AB", u"n", u"3"));
    CHECK(store.erase_section(u"a"));
    CHECK(content_of(file) == "[AB]\nn=3\n");
    CHECK_FALSE(store.erase_section(u""));
    CHECK(store.erase_section(u"AB"));
    CHECK_FALSE(store.erase_section(u""));
    CHECK(store.write(u"", u"n", u"4"));
    CHECK(store.erase_section(u"\\"));
    CHECK_FALSE(store.read(u"", u"n").has_value());
}

TEST_CASE("folders and files are made at the first write, for their owner only") {
    const TemporaryFolder folder;
    const auto file = folder.path / "Ombrel" / "QOR Plus" / "settings.ini";
    IniSettingsStore store(file);
    CHECK_FALSE(store.read(u"Options", u"a").has_value());
    CHECK_FALSE(store.erase(u"Options", u"a"));
    CHECK_FALSE(store.erase_section(u"Options"));
    CHECK(folder.names().empty());
    CHECK(store.write(u"Options", u"a", u"1"));
    CHECK(std::filesystem::status(folder.path / "Ombrel").permissions() == private_folder);
    CHECK(std::filesystem::status(folder.path / "Ombrel" / "QOR Plus").permissions() == private_folder);
    CHECK(std::filesystem::status(file).permissions() == private_file);
    CHECK(std::filesystem::status(file.native() + ".lock").permissions() == private_file);
}

TEST_CASE_FIXTURE(Fixture, "a value that stays the same leaves the file alone") {
    CHECK(store.write(u"Options", u"a", u"1"));
    put(file, "[Options]\na =   1\n");
    CHECK(store.write(u"Options", u"a", u"1"));
    CHECK(content_of(file) == "[Options]\na =   1\n");
}

TEST_CASE_FIXTURE(Fixture, "a file that is a symbolic link stays one") {
    std::filesystem::create_directory(folder.path / "real");
    put(folder.path / "real" / "mine.ini", "[Options]\na=1\n");
    std::filesystem::create_symlink("real/mine.ini", file);
    CHECK(store.write(u"Options", u"a", u"2"));
    CHECK(std::filesystem::is_symlink(file));
    CHECK(content_of(folder.path / "real" / "mine.ini") == "[Options]\na=2\n");
}
