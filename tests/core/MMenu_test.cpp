#include "core/MMenu.hpp"

#include <doctest/doctest.h>

#include <optional>

#include "tests/core/menu_host.hpp"
#include "tests/support/failing_object.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

void check_tags(const std::list<FakeControl>& controls) {
    for (const FakeControl& control : controls) {
        CHECK(control.text(u"Tag") == u"QOR Plus");
        CHECK(control.text(u"Temporary") == u"False");
        check_tags(control.controls);
    }
}

}  // namespace

TEST_CASE_FIXTURE(MenuHost, "the popup stands before the host's Help menu, or at the end where there is none") {
    create();
    CHECK(texts(main(), u"Caption") == Lines{u"&File", u"&QOR Plus", u"&Help"});
    CHECK(top().type == 10);
    CHECK(texts(top().controls, u"Caption") == Lines{u"&Reports", u"&Workbooks", u"Wor&ksheets", u"&Options...",
                                                     u"&Contents and Index", u"L&umenrock on the Web",
                                                     u"&About QOR Plus"});
    CHECK(with_group(top().controls) == Lines{u"", u"UTOpt", u"QOpenHelp", u"QAbout"});
    CHECK(done == Lines{u"holds", u"draws"});
    main().pop_back();
    create();
    CHECK(texts(main(), u"Caption") == Lines{u"&File", u"&QOR Plus"});
}

TEST_CASE_FIXTURE(MenuHost, "everything that is added carries the title and is not temporary; the toolbars are") {
    create();
    check_tags({top()});
    for (const auto* manager : {u"Report", u"Workbook", u"Worksheet"}) {
        check_tags(bar(manager).controls);
        CHECK(bar(manager).temporary);
    }
}

TEST_CASE_FIXTURE(MenuHost, "each control is made in the order that hosts need") {
    create();
    const Lines steps{u"BeginGroup", u"Caption", u"OnAction", u"PasteFace", u"Tag", u"ToolTipText"};
    CHECK(entry(0, 3).steps == steps);
    CHECK(std::next(bar(u"Report").controls.begin(), 3)->steps == steps);
    CHECK(std::next(top().controls.begin(), 3)->steps == Lines{u"BeginGroup", u"Caption", u"OnAction", u"Tag"});
    // Each face is loaded once, for the entry, and pasted on both; 41 of the faces are for the menu, one of them twice.
    CHECK(faces.loaded.size() == 42);
    CHECK(std::ranges::count(faces.loaded, u"WEBURL") == 2);
}

TEST_CASE_FIXTURE(MenuHost, "the bookmarks stand at the end of the worksheet toolbar, and on no menu") {
    create();
    CHECK(list().type == 3);
    CHECK(list().steps ==
          Lines{u"BeginGroup", u"DropDownWidth", u"OnAction", u"Width", u"Tag", u"Clear", u"AddItem", u"ListIndex"});
    CHECK(list().text(u"Width") == u"150");
    const FakeControl& edit = bar(u"Worksheet").controls.back();
    CHECK(edit.text(u"Caption") == u"Add, Edit, and Delete Bookmarks");
    CHECK(edit.text(u"ToolTipText") == u"Add, Edit, and Delete Bookmarks");
    CHECK(edit.face == u"BOOAED");
}

TEST_CASE_FIXTURE(MenuHost, "the add-in shows the tools that it has") {
    call(u"QMenuCreate");
    CHECK(texts(top().controls, u"Caption").size() == 7);
    for (const fakes::FakeBar& bar : bars.bars) {
        if (!bar.name.starts_with(u"QOR Plus")) continue;
        for (const FakeControl& control : bar.controls)
            CHECK(CCom::members().find(MemberName(control.text(u"OnAction"))));
    }
    const Lines reports = texts(bar(u"Report").controls, u"OnAction");
    CHECK(std::ranges::find(reports, u"UTWorSum") != reports.end());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(MenuHost, "a second menu takes the place of the first") {
    create();
    create();
    CHECK(texts(main(), u"Caption") == Lines{u"&File", u"&QOR Plus", u"&Help"});
    CHECK(bars.bars.size() == 5);
    remove(false);
    CHECK(texts(main(), u"Caption") == Lines{u"&File", u"&Help"});
    CHECK(bars.bars.size() == 2);
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(MenuHost, "a button that the user has copied onto a bar of the host goes too") {
    create();
    fakes::FakeBar& standard = *bars.find(u"Standard");
    standard.controls.emplace_back().properties[u"Tag"] = u"QOR Plus";
    standard.controls.emplace_back().properties[u"Tag"] = u"another's";
    standard.controls.emplace_back().properties[u"Tag"] = u"QOR Plus";
    remove(true);
    CHECK(standard.controls.size() == 3);
    remove(false);
    CHECK(texts(standard.controls, u"Tag") == Lines{u"another's"});
}

TEST_CASE_FIXTURE(MenuHost, "a control that the host does not let go hangs nothing up") {
    create();
    host_log.refuses = [](std::u16string_view type, std::u16string_view member, auto) {
        return type == u"CommandBarControl" && member == u"Delete";
    };
    remove(false);
    CHECK(texts(main(), u"Caption") == Lines{u"&File", u"&QOR Plus", u"&Help"});
}

TEST_CASE("whatever single call fails, the rest of the menu is tried and the host draws again") {
    std::optional<MenuHost> menu;
    int does_not_draw = 0;
    const auto anew = [&] {
        menu.emplace();
        return menu->host;
    };
    const std::uint64_t failures = support::fail_each_access(anew, MenuHost::create_on, [&](std::int32_t error) {
        CHECK(error == 0);
        if (menu->done.back() != u"draws") ++does_not_draw;
        CHECK(menu->faces.loaded.size() == 42);
        menu->remove(false);
        CHECK(menu->bars.bars.size() == 2);
    });
    CHECK(does_not_draw == 1);  // where the host refused just that
    CHECK(failures > 500);
}
