#include "stores/data_folder.hpp"

#include <doctest/doctest.h>

#include <sstream>

#include "platform/text.hpp"
#include "runtime/format.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;

TEST_CASE("a new data folder has empty stores and a list of date formats") {
    const TemporaryFolder folder;
    const auto data = folder.path / "share" / "2.6";
    CHECK(create_data_files(data));
    for (const char* store : {"Bookmarks.dat", "FileGroups.dat", "PrintGroups.dat"}) {
        CHECK(content_of(data / store) == "There are no items\r\n");
    }
    std::istringstream lines(content_of(data / "DateFormat.dat"));
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        CAPTURE(line);
        CHECK((format(Date{46347.75}, from_utf8(line)) != from_utf8(line)));
    }
    CHECK(count == 12);
}

TEST_CASE("data files that are there stay as they are") {
    const TemporaryFolder folder;
    put(folder.path / "Bookmarks.dat", "mine");
    put(folder.path / "DateFormat.dat", "yy");
    CHECK(create_data_files(folder.path));
    CHECK(content_of(folder.path / "Bookmarks.dat") == "mine");
    CHECK(content_of(folder.path / "DateFormat.dat") == "yy");
    CHECK(content_of(folder.path / "FileGroups.dat") == "There are no items\r\n");
}

TEST_CASE("a data folder that cannot be made is told") {
    const TemporaryFolder folder;
    put(folder.path / "file", "");
    CHECK_FALSE(create_data_files(folder.path / "file"));
}
