#include "stores/data_file.hpp"

#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;

namespace {

struct Fixture {
    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "Bookmarks.dat";
    std::filesystem::path bad = folder.path / "Bookmarks.dat.bad";
    std::u16string path = from_utf8(folder.path.string()) + u"\\Bookmarks.dat";  // as commands join it

    static PropertyBag bag_of(std::u16string text) {
        PropertyBag bag;
        bag.write(u"Text", std::move(text));
        return bag;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a bag goes to its file and comes back") {
    CHECK(save_data_file(path, bag_of(u"one")));
    CHECK((load_data_file(path).read(u"Text") == u"one"));
    CHECK_FALSE(std::filesystem::exists(bad));
}

TEST_CASE_FIXTURE(Fixture, "a shorter image leaves the end of the longer file behind it") {
    CHECK(save_data_file(path, bag_of(std::u16string(100, u'x'))));
    const std::string before = content_of(file);
    CHECK(save_data_file(path, bag_of(u"short")));
    const std::string image = bag_of(u"short").image();
    CHECK(content_of(file) == image + before.substr(image.size()));
    CHECK((load_data_file(path).read(u"Text") == u"short"));
    CHECK_FALSE(std::filesystem::exists(bad));
}

TEST_CASE_FIXTURE(Fixture, "the empty form is one line and replaces the file") {
    CHECK(save_data_file(path, bag_of(std::u16string(100, u'x'))));
    CHECK(save_empty_data_file(path));
    CHECK(content_of(file) == "There are no items\r\n");
    CHECK(load_data_file(path).size() == 0);
    CHECK(save_data_file(path, bag_of(u"x")));
    CHECK(content_of(file).starts_with(bag_of(u"x").image()));
    CHECK_FALSE(std::filesystem::exists(bad));
}

TEST_CASE_FIXTURE(Fixture, "a damaged file reads as empty and is kept beside the one that replaces it") {
    put(file, "PK\x03\x04 a foreign file");
    CHECK(load_data_file(path).size() == 0);
    CHECK(save_data_file(path, bag_of(u"new")));
    CHECK(content_of(file) == bag_of(u"new").image());
    CHECK(content_of(bad) == "PK\x03\x04 a foreign file");

    put(file, "another");
    CHECK(save_empty_data_file(path));
    CHECK(content_of(bad) == "another");
}

TEST_CASE_FIXTURE(Fixture, "a truncated image reads as empty") {
    const std::string image = bag_of(u"some text").image();
    put(file, image.substr(0, image.size() - 1));
    CHECK(load_data_file(path).size() == 0);
}

TEST_CASE_FIXTURE(Fixture, "a gigantic file reads as empty") {
    put(file, "\xA1");
    std::filesystem::resize_file(file, std::uintmax_t{1} << 40U);  // takes no room on the disk
    CHECK(load_data_file(path).size() == 0);
    CHECK(save_data_file(path, bag_of(u"new")));
    CHECK((load_data_file(path).read(u"Text") == u"new"));
    CHECK(std::filesystem::file_size(bad) == std::uintmax_t{1} << 40U);
}

TEST_CASE_FIXTURE(Fixture, "what cannot be read or written is passed over") {
    CHECK(load_data_file(path).size() == 0);  // missing
    CHECK_FALSE(save_data_file(from_utf8((folder.path / "missing" / "file.dat").string()), bag_of(u"x")));
    std::filesystem::create_directory(file);
    CHECK(load_data_file(path).size() == 0);
}

TEST_CASE_FIXTURE(Fixture, "a file without a name is not written, and leaves nothing in the current folder") {
    const std::filesystem::path current = std::filesystem::current_path();
    std::filesystem::current_path(folder.path);
    CHECK_FALSE(save_empty_data_file(u""));
    CHECK(folder.names().empty());
    std::filesystem::current_path(current);
}
