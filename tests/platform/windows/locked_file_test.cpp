#include "platform/locked_file.hpp"

#include <doctest/doctest.h>

#include "tests/support/temporary_folder.hpp"

using namespace qor;

TEST_CASE("a file is replaced whole, and what it was is kept when that is asked for") {
    const test::TemporaryFolder folder;
    const auto path = folder.path / "Bookmarks.dat";
    CHECK(read_whole_file(path, 100).state == FileState::absent);
    CHECK(read_whole_file(folder.path / "no folder" / "a", 100).state == FileState::absent);
    auto file = LockedFile::acquire(path);
    REQUIRE(file);
    CHECK(file->replace("one"));
    CHECK(read_whole_file(path, 100).bytes == "one");
    CHECK(file->replace("another", LockedFile::Previous::kept_as_bad));
    CHECK(read_whole_file(path, 100).bytes == "another");
    CHECK(test::content_of(folder.path / "Bookmarks.dat.bad") == "one");
    CHECK(read_whole_file(path, 6).state == FileState::too_large);
    CHECK(read_whole_file(folder.path, 100).state == FileState::unreadable);
    CHECK_FALSE(LockedFile::acquire(folder.path / "no folder" / "a"));
}
