#include "core/bookmark_list.hpp"

#include <doctest/doctest.h>

#include "tests/core/menu_host.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

constexpr auto missing_file = [](const std::u16string& path) {
    return u"message Sorry, but the filename " + path + u" is missing.  Please contact technical support.";
};

}  // namespace

TEST_CASE_FIXTURE(MenuHost, "the list shows the bookmarks, or that there are none") {
    create();
    CHECK(list().entries == Lines{u"(Bookmarks)"});
    CHECK(list().text(u"ListIndex") == u"1");
    PropertyBag bag;
    bag.write(u"NumberOfItems", 2, 0);
    bag.write(u"1Bookmark", u"Rent");
    bag.write(u"2Bookmark", u"Tax");
    save_data_file(path, bag);
    create();
    CHECK(list().entries == Lines{u"Rent", u"Tax"});
    CHECK(list().text(u"ListIndex") == u"1");
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(MenuHost, "without the file of bookmarks that is told, and all else is complete") {
    std::filesystem::remove(folder.path / "Bookmarks.dat");
    create();
    CHECK(screen.log == Lines{missing_file(path)});
    CHECK(screen.told.title == u"QOR Plus");
    CHECK(screen.told.icon == MessageIcon::critical);
    CHECK(list().entries.empty());
    CHECK_FALSE(list().properties.contains(u"ListIndex"));
    CHECK(bar(u"Worksheet").controls.size() == 21);
    CHECK(done.back() == u"draws");
}
