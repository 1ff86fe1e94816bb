#include "platform/files.hpp"

#include <doctest/doctest.h>
#include <sys/stat.h>

#include "tests/support/temporary_folder.hpp"

using namespace qor;

TEST_CASE("a path is the system's with either separator and with the letter of the root file system") {
    CHECK(native_path(u"/home/ann") == "/home/ann");
    CHECK(native_path(u"/home/ann\\Bookmarks.dat") == "/home/ann/Bookmarks.dat");
    CHECK(native_path(u"home\\ann") == "home/ann");
    CHECK(native_path(u"C:\\home\\ann") == "/home/ann");
    CHECK(native_path(u"c:/home/ann") == "/home/ann");
    CHECK(native_path(u"C:\\") == "/");
    CHECK(native_path(u"C:") == "/");
    CHECK(native_path(u"C:\\\\home") == "/home");
    CHECK(native_path(u"\\") == "/");
    CHECK(native_path(u"") == "");
    CHECK(native_path(u"/h\u00F6me") == "/h\xC3\xB6me");
    CHECK_FALSE(std::filesystem::exists(native_path(u"1:\\")));
}

TEST_CASE("a file's entry tells its kind and its times") {
    const test::TemporaryFolder folder;
    const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    test::put(folder.path / "a", "content");
    const auto after = std::chrono::system_clock::now();
    const std::optional<FileEntry> file = find_file((folder.path / "a").u16string());
    REQUIRE(file);
    CHECK(file->attributes == file_attributes::normal);
    CHECK(file->last_write >= before - std::chrono::seconds(1));
    CHECK(file->last_write <= after);
    const bool is_kept = file->creation != file_clock_start;
    if (is_kept) CHECK(file->creation <= file->last_write);
    const std::optional<FileEntry> itself = find_file(folder.path.u16string());
    REQUIRE(itself);
    CHECK((itself->attributes & file_attributes::directory) != 0);
    CHECK((itself->attributes & file_attributes::normal) == 0);
}

TEST_CASE("a link stands for its target, and one without a target for nothing") {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path / "target");
    std::filesystem::create_symlink("target", folder.path / "link");
    std::filesystem::create_symlink("gone", folder.path / "broken");
    const std::optional<FileEntry> link = find_file((folder.path / "link").u16string());
    REQUIRE(link);
    CHECK((link->attributes & file_attributes::directory) != 0);
    CHECK_FALSE(find_file((folder.path / "broken").u16string()));
}

TEST_CASE("only the root may end in a separator") {
    CHECK(find_file(u"/"));
    CHECK(find_file(u"C:\\"));
    const test::TemporaryFolder folder;
    CHECK_FALSE(find_file(folder.path.u16string() + u"/"));
    CHECK_FALSE(find_file(u""));
}

TEST_CASE("the first match of a pattern is the entry") {
    const test::TemporaryFolder folder;
    test::put(folder.path / "b.txt", "");
    test::put(folder.path / "a.txt", "");
    REQUIRE(::chmod((folder.path / "a.txt").c_str(), S_IRUSR) == 0);
    const auto match = find_file((folder.path / "?.txt").u16string());
    REQUIRE(match);
    CHECK(match->attributes == file_attributes::read_only);
    CHECK_FALSE(find_file((folder.path / "?.doc").u16string()));
    CHECK_FALSE(find_file((folder.path / "no such folder" / "*").u16string()));
}
