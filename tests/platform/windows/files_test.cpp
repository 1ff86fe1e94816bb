#include "platform/files.hpp"

#include <doctest/doctest.h>
#include <windows.h>

#include "tests/support/temporary_folder.hpp"

using namespace qor;

TEST_CASE("files: a path is the system's with either separator") {
    CHECK(path_text(native_path(u"C:/home/ann\\Bookmarks.dat")) == u"C:\\home\\ann\\Bookmarks.dat");
    CHECK(path_text(native_path(u"home/ann")) == u"home\\ann");
    CHECK(path_text(native_path(u"")).empty());
    CHECK(path_text(native_path(u"C:\\h\u00F6me")) == u"C:\\h\u00F6me");
}

TEST_CASE("files: an entry tells its kind and its times") {
    const test::TemporaryFolder folder;
    const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    test::put(folder.path / "a", "content");
    const auto after = std::chrono::system_clock::now();
    const std::optional<FileEntry> file = find_file(path_text(folder.path / "a"));
    REQUIRE(file);
    CHECK((file->attributes & file_attributes::directory) == 0);
    CHECK(file->last_write >= before - std::chrono::seconds(1));
    CHECK(file->last_write <= after);
    const std::optional<FileEntry> itself = find_file(path_text(folder.path));
    REQUIRE(itself);
    CHECK((itself->attributes & file_attributes::directory) != 0);
}

TEST_CASE("files: the attributes are those that were set") {
    const test::TemporaryFolder folder;
    test::put(folder.path / "a.txt", "");
    REQUIRE(SetFileAttributesW((folder.path / "a.txt").c_str(), FILE_ATTRIBUTE_READONLY));
    const auto match = find_file(path_text(folder.path / "?.txt"));
    REQUIRE(match);
    CHECK((match->attributes & file_attributes::read_only) != 0);
    CHECK_FALSE(find_file(path_text(folder.path / "?.doc")));
    CHECK_FALSE(find_file(path_text(folder.path / "no such folder" / "*")));
    SetFileAttributesW((folder.path / "a.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_CASE("files: only the root may end in a separator") {
    const std::optional<FileEntry> root = find_file(u"C:\\");
    REQUIRE(root);
    CHECK((root->attributes & file_attributes::directory) != 0);
    CHECK(find_file(u"C:"));
    CHECK_FALSE(find_file(u"C:\\windows\\"));
    CHECK(find_file(u"C:\\windows"));
    CHECK_FALSE(find_file(u"1:\\"));
    CHECK_FALSE(find_file(u""));
}
