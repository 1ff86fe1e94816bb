#include "core/menu_table.hpp"

#include <doctest/doctest.h>

#include "tests/core/menu_host.hpp"

using namespace qor;
using namespace qor::tests;

TEST_CASE_FIXTURE(MenuHost, "the reports, on menu and toolbar") {
    create();
    const std::list<FakeControl>& entries = top().controls.front().controls;
    const std::list<FakeControl>& buttons = bar(u"Report").controls;
    const Lines captions{u"&Cell Color", u"Cell &Information", u"&Date Review", u"&Workbook Summary",
                         u"Worksheet &Summary"};
    const Lines actions{u"UTCelCol", u"UTCelInf", u"UTDatRev", u"UTWokSum", u"UTWorSum"};
    for (const auto* controls : {&entries, &buttons}) {
        CHECK(texts(*controls, u"Caption") == captions);
        CHECK(texts(*controls, u"OnAction") == actions);
        CHECK(texts(*controls, u"ToolTipText") ==
              Lines{u"Cell Color", u"Cell Information", u"Date Review", u"Workbook Summary", u"Worksheet Summary"});
        CHECK(faces_of(*controls) == Lines{u"CELCOL", u"CELINF", u"DATREV", u"WOKSUM", u"WORSUM"});
        CHECK(with_group(*controls) == Lines{u"UTWokSum"});
    }
}

TEST_CASE_FIXTURE(MenuHost, "the tools for workbooks") {
    create();
    const std::list<FakeControl>& entries = std::next(top().controls.begin(), 1)->controls;
    CHECK(texts(entries, u"OnAction") == Lines{u"UTWokGro", u"UTPriGro", u"UTAltTem", u"UTAddWor", u"UTDelEmpWor",
                                               u"UTWinHidUnh", u"UTCloAll", u"UTSavAll", u"UTPriAll", u"UTCleRecFil",
                                               u"UTSpeCheAll", u"UTSorWor", u"UTNav"});
    CHECK(with_group(entries) == Lines{u"UTAltTem", u"UTAddWor", u"UTCloAll", u"UTCleRecFil"});
    CHECK(texts(entries, u"Caption") == texts(bar(u"Workbook").controls, u"Caption"));
    CHECK(entry(1, 2).text(u"Caption") == u"&New File - Alternate Template");
    CHECK(entry(1, 2).text(u"ToolTipText") == u"New File - Alternate Template");
}

TEST_CASE_FIXTURE(MenuHost, "the tools for worksheets, with the names of macros as hosts have them") {
    create();
    const std::list<FakeControl>& entries = std::next(top().controls.begin(), 2)->controls;
    Lines actions = texts(entries, u"OnAction");
    REQUIRE(actions.size() == 19);
    CHECK(actions[9] == u"UTCELWORPRO");
    CHECK(actions[11] == u"UTLINLOC");
    CHECK(actions[13] == u"UTraColRow");
    CHECK(with_group(entries) == Lines{u"UTInsSinCol", u"UTCelSel", u"UTCleScrAre", u"UTWorHidUnh"});
    std::list<FakeControl>& buttons = bar(u"Worksheet").controls;
    REQUIRE(buttons.size() == 21);
    actions[11] = u"UTLinLoc";
    actions[13] = u"UTTraColRow";
    actions.emplace_back(u"UTBoo");
    actions.emplace_back(u"UTBooAED");
    CHECK(texts(buttons, u"OnAction") == actions);
    CHECK(entry(2, 1).text(u"Caption") == u"&Column or Row Shading");
    CHECK(std::next(buttons.begin(), 1)->text(u"Caption") == u"Column or Row Shading");
    CHECK(std::next(buttons.begin(), 4)->text(u"Caption") == u"Column or Row Insertion");
    CHECK(std::next(buttons.begin(), 6)->text(u"Caption") == u"Cell Selector");
}

TEST_CASE_FIXTURE(MenuHost, "the makers on the web have a popup of their own") {
    create();
    const FakeControl& web = *std::next(top().controls.begin(), 5);
    CHECK(web.type == 10);
    CHECK(texts(web.controls, u"Caption") == Lines{u"Send Author &Email", u"&Online &Support", u"&Home Page"});
    CHECK(texts(web.controls, u"OnAction") == Lines{u"UTSendEmail", u"UTOnlineSupport", u"UTHomePage"});
    CHECK(faces_of(web.controls) == Lines{u"SENDEMAIL", u"WEBURL", u"WEBURL"});
    CHECK(with_group(web.controls) == Lines{u"UTHomePage"});
    CHECK(texts(web.controls, u"ToolTipText") == Lines{u"", u"", u""});
}
