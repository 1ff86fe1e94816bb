#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("recent files") {
    const Calc calc;
    const Object recent = calc.application.get(names::RecentFiles);
    for (std::int32_t left = *recent.get(names::Count).get_if<std::int32_t>(); left > 0; --left) {
        recent.get(names::Item, 1).call(names::Delete);
    }
    REQUIRE(recent.get(names::Count) == 0);
    for (const char* file : {"first.ods", "second.xlsx", "third.xls"}) {
        calc.reopened(calc.add_book(), file).call(names::Close, false);
    }
    REQUIRE(recent.get(names::Count) == 3);
    const auto path = [&](const char* file) { return from_utf8((calc.folder() / file).string()); };
    CHECK(recent.get(names::Item, 1).get(names::Path) == Variant(path("third.xls")));
    CHECK(recent.get(names::Item, 2).get(names::Name) == Variant(path("second.xlsx")));
    CHECK(calc.application.get(names::RecentFiles, 3).get(names::Index) == 3);
    CHECK(recent.items().size() == 3);
    CHECK(error_of([&] { recent.get(names::Item, 4); }) == 9);

    const Object second = recent.get(names::Item, 2);
    second.call(names::Delete);
    CHECK(recent.get(names::Count) == 2);
    CHECK(recent.get(names::Item, 2).get(names::Path) == Variant(path("first.ods")));
    CHECK(error_of([&] { second.call(names::Delete); }) == 1004);
    CHECK(error_of([&] { second.get(names::Index); }) == 1004);
    CHECK(recent.get(names::Item, 2).call(names::Open).get(names::Name) == u"first.ods");
    recent.get(names::Item, 1).call(names::Delete);
    recent.get(names::Item, 1).call(names::Delete);
    CHECK(recent.get(names::Count) == 0);
}

TEST_CASE("how many recent files are shown") {
    const Calc calc;
    const Object recent = calc.application.get(names::RecentFiles);
    CHECK(recent.get(names::Maximum) == 25);
    CHECK(calc.application.get(names::DisplayRecentFiles) == true);
    recent.put(names::Maximum, 9);
    CHECK(recent.get(names::Maximum) == 9);
    CHECK(error_of([&] { recent.put(names::Maximum, 51); }) == 1004);
    CHECK(error_of([&] { recent.put(names::Maximum, -1); }) == 1004);
    calc.application.put(names::DisplayRecentFiles, true);
    CHECK(recent.get(names::Maximum) == 9);
    calc.application.put(names::DisplayRecentFiles, false);
    CHECK(calc.application.get(names::DisplayRecentFiles) == false);
    CHECK(recent.get(names::Maximum) == 0);
    calc.application.put(names::DisplayRecentFiles, true);
    CHECK(recent.get(names::Maximum) == 25);
}

}  // namespace qor::calc::tests
