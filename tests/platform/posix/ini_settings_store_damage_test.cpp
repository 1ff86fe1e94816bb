#include <doctest/doctest.h>
#include <rapidcheck.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "platform/ini_settings_store.hpp"
#include "tests/platform/posix/child_process.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;
using namespace std::string_literals;

namespace {

struct Fixture {
    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "settings.ini";
    std::filesystem::path bad = folder.path / "settings.ini.bad";
    IniSettingsStore store{file};
};

// Permissions do not bind the superuser, so a test of theirs runs as somebody else.
bool become_ordinary() {
    constexpr uid_t nobody = 65534;
    return ::geteuid() != 0 || (::setresgid(nobody, nobody, nobody) == 0 && ::setresuid(nobody, nobody, nobody) == 0);
}

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a damaged file reads as empty and is kept when the next value is written") {
    for (const auto& damaged : {
             "[Options]\na=\xFF\xFE\n"s,           // not UTF-8
             "[Options]\na=1\0b=2\n"s,             // not text
             "[Options]\na=1\nno value\n"s,        // not of this grammar
             "a=1\n"s,                             // no section
             "[Options]\nEncoding=UTF-16\na=1\n"s  // says that it is something else
         }) {
        CAPTURE(damaged);
        put(file, damaged);
        std::filesystem::remove(bad);
        CHECK_FALSE(store.read(u"Options", u"a").has_value());
        CHECK_FALSE(store.erase(u"Options", u"a"));
        CHECK_FALSE(store.erase_section(u"Options"));
        CHECK(content_of(file) == damaged);
        CHECK_FALSE(std::filesystem::exists(bad));
        CHECK(store.write(u"Options", u"b", u"2"));
        CHECK(content_of(bad) == damaged);
        CHECK(content_of(file) == "[Options]\nb=2\n");
    }
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.bad", "settings.ini.lock"});
}

TEST_CASE_FIXTURE(Fixture, "whatever the file holds, a value can be written and nothing is lost") {
    const auto part = rc::gen::element<std::string>("[A]", "[a\\B]", "[", "]", "k", "n=1", "k = \\u0041\\", "=", "#",
                                                    " ", "\n", "\n", "\r\n", "\t", "\xEF\xBB\xBF", "\xC3\xA9", "\xC3",
                                                    "%41", "[de]", "Encoding=", ";", std::string(1, '\0'));
    int damaged = 0;
    int read = 0;
    CHECK(rc::check([&] {
        std::string before;
        for (const auto& text : *rc::gen::container<std::vector<std::string>>(part)) before += text;
        put(file, before);
        std::filesystem::remove(bad);
        const auto value = store.read(u"A", u"k");
        RC_ASSERT(store.write(u"New", u"n", u"v"));
        RC_ASSERT(store.read(u"New", u"n") == u"v"s);
        RC_ASSERT(store.read(u"A", u"k") == value);
        if (std::filesystem::exists(bad)) {
            RC_ASSERT(content_of(bad) == before);
            ++damaged;
        } else {
            ++read;
        }
    }));
    CHECK(damaged > 0);
    CHECK(read > 0);
}

TEST_CASE_FIXTURE(Fixture, "a file above 16 MB is damaged, and none is written") {
    constexpr std::size_t limit = 16U << 20U;
    const std::string begin = "[Options]\na=1\nfill=";
    put(file, begin + std::string(limit - begin.size() - 1, 'x') + "\n");
    CHECK((store.read(u"Options", u"a") == u"1"s));
    CHECK_FALSE(store.write(u"Options", u"b", u"2"));
    CHECK(std::filesystem::file_size(file) == limit);

    put(file, begin + std::string(limit - begin.size(), 'x') + "\n");
    CHECK_FALSE(store.read(u"Options", u"a").has_value());
    CHECK(store.write(u"Options", u"b", u"2"));
    CHECK(std::filesystem::file_size(bad) == limit + 1);
    CHECK(content_of(file) == "[Options]\nb=2\n");
}

TEST_CASE_FIXTURE(Fixture, "what is no file is left alone") {
    SUBCASE("a folder") {
        std::filesystem::create_directory(file);
    }
    SUBCASE("a pipe") {
        REQUIRE(::mkfifo(file.c_str(), 0600) == 0);
    }
    const auto type = std::filesystem::status(file).type();
    CHECK_FALSE(store.read(u"Options", u"a").has_value());
    CHECK_FALSE(store.write(u"Options", u"a", u"1"));
    CHECK_FALSE(store.erase(u"Options", u"a"));
    CHECK_FALSE(store.erase_section(u"Options"));
    CHECK(std::filesystem::status(file).type() == type);
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});
}

TEST_CASE_FIXTURE(Fixture, "a folder that cannot be made or written gives false") {
    put(folder.path / "plain", "a file");
    IniSettingsStore below_a_file(folder.path / "plain" / "settings.ini");
    CHECK_FALSE(below_a_file.read(u"Options", u"a").has_value());
    CHECK_FALSE(below_a_file.write(u"Options", u"a", u"1"));
    CHECK_FALSE(below_a_file.erase(u"Options", u"a"));
    CHECK(content_of(folder.path / "plain") == "a file");

    ::chmod(folder.path.c_str(), 0555);
    ChildProcess child([&] {
        if (!become_ordinary()) return 100;
        if (store.write(u"Options", u"a", u"1")) return 1;
        if (IniSettingsStore(folder.path / "new" / "settings.ini").write(u"Options", u"a", u"1")) return 2;
        return 0;
    });
    CHECK(child.wait() == 0);
    ::chmod(folder.path.c_str(), 0755);
    CHECK(folder.names() == std::set<std::string>{"plain"});
}

TEST_CASE_FIXTURE(Fixture, "a file that may not be read stays untouched") {
    CHECK(store.write(u"Options", u"a", u"1"));
    ::chmod(file.c_str(), 0000);
    ::chmod((file.native() + ".lock").c_str(), 0666);
    ::chmod(folder.path.c_str(), 0777);
    ChildProcess child([&] {
        if (!become_ordinary()) return 100;
        if (store.read(u"Options", u"a")) return 1;
        if (store.write(u"Options", u"a", u"2")) return 2;
        if (store.erase(u"Options", u"a")) return 3;
        if (store.erase_section(u"Options")) return 4;
        return 0;
    });
    CHECK(child.wait() == 0);
    ::chmod(file.c_str(), 0600);
    CHECK(content_of(file) == "[Options]\na=1\n");
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});
}

TEST_CASE_FIXTURE(Fixture, "a disk that is full leaves the file as it was") {
    CHECK(store.write(u"Options", u"a", u"1"));
    const auto write_with_little_room = [&] {
        // A limit on the size of files makes a write stop halfway as a full disk does.
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit room = {1000, 1000};
        if (::setrlimit(RLIMIT_FSIZE, &room) != 0) return 100;
        if (store.write(u"Options", u"b", std::u16string(5000, u'x'))) return 1;
        if (store.read(u"Options", u"a") != u"1"s) return 2;
        return store.write(u"Options", u"c", u"3") ? 0 : 3;
    };
    ChildProcess child(write_with_little_room);
    CHECK(child.wait() == 0);
    CHECK(content_of(file) == "[Options]\na=1\nc=3\n");

    put(file, "damaged");
    ChildProcess other(write_with_little_room);
    CHECK(other.wait() == 2);
    CHECK(content_of(file) == "damaged");
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});
}

TEST_CASE_FIXTURE(Fixture, "what a killed writer left beside the file is taken away") {
    put(folder.path / "settings.ini.new", "[Options]\nhalf");
    CHECK_FALSE(store.read(u"Options", u"a").has_value());
    CHECK(store.write(u"Options", u"a", u"1"));
    CHECK(content_of(file) == "[Options]\na=1\n");
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});

    std::filesystem::create_directory(folder.path / "settings.ini.new");
    CHECK_FALSE(store.write(u"Options", u"a", u"2"));
    CHECK(content_of(file) == "[Options]\na=1\n");
}
