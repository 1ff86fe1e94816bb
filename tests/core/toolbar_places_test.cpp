#include "core/toolbar_places.hpp"

#include <doctest/doctest.h>

#include "tests/core/menu_host.hpp"

using namespace qor;
using namespace qor::tests;

TEST_CASE_FIXTURE(MenuHost, "on a fresh profile the toolbars float one below the other") {
    create();
    struct Row {
        const char16_t* manager;
        std::int32_t top;
        std::int32_t width;
    };
    for (const Row& row : {Row{u"Report", 139, 137}, Row{u"Workbook", 203, 316}, Row{u"Worksheet", 268, 391}}) {
        auto& place = bar(row.manager).properties;
        CHECK(to_long(place[u"Position"]) == 4);
        CHECK(to_long(place[u"Left"]) == 65);
        CHECK(to_long(place[u"Top"]) == row.top);
        CHECK(to_long(place[u"Height"]) == 49);
        CHECK(to_long(place[u"Width"]) == row.width);
        CHECK(to_boolean(place[u"Visible"]));
        CHECK_FALSE(place.contains(u"RowIndex"));
    }
}

TEST_CASE_FIXTURE(MenuHost, "where a toolbar stands is kept, without touching anything else if so asked") {
    create();
    auto& place = bar(u"Report").properties;
    place[u"Position"] = 1;
    place[u"RowIndex"] = 3;
    place[u"Left"] = 12;
    place[u"Visible"] = false;
    remove(true);
    CHECK(bars.bars.size() == 5);
    const auto kept = [&](const std::u16string& name) { return settings.read(u"TBReport", name); };
    CHECK(kept(u"Position") == u"1");
    CHECK(kept(u"RowIndex") == u"3");
    CHECK(kept(u"Left") == u"12");
    CHECK(kept(u"Top") == u"139");
    CHECK(kept(u"Height") == u"49");
    CHECK(kept(u"Width") == u"137");
    CHECK(kept(u"Visible") == u"False");
    CHECK(settings.read(u"TBWorksheet", u"Top") == u"268");
    // A docked one comes back by its row; height, top and width are not set.
    create();
    auto& again = bar(u"Report").properties;
    CHECK(to_long(again[u"Position"]) == 1);
    CHECK(to_long(again[u"RowIndex"]) == 3);
    CHECK(to_long(again[u"Left"]) == 12);
    CHECK_FALSE(to_boolean(again[u"Visible"]));
    CHECK_FALSE(again.contains(u"Top"));
    CHECK_FALSE(again.contains(u"Height"));
    CHECK_FALSE(again.contains(u"Width"));
    // Without a row of its own it gets any.
    remove(false);
    settings.values.erase({u"TBReport", u"RowIndex"});
    create();
    CHECK(to_long(bar(u"Report").properties[u"RowIndex"]) == -1);
}

TEST_CASE_FIXTURE(MenuHost, "places that are no numbers leave the host's own") {
    settings.values[{u"TBReport", u"Position"}] = u"left";
    settings.values[{u"TBReport", u"Top"}] = u"high";
    settings.values[{u"TBReport", u"Visible"}] = u"perhaps";
    create();
    auto& place = bar(u"Report").properties;
    CHECK_FALSE(place.contains(u"Position"));
    CHECK_FALSE(place.contains(u"Top"));
    CHECK_FALSE(place.contains(u"Visible"));
    CHECK(to_long(place[u"Left"]) == 65);
}
