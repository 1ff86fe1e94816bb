#include <doctest/doctest.h>

#include <cstdlib>

#include "tests/calc_user/users_calc.hpp"

namespace qor::calc::tests {

TEST_CASE("the menu stands before Help, and by the keyboard alone a setting of each tab is changed and kept") {
    const UsersHome home;
    home.note_opened_addresses(EXIT_SUCCESS);
    UsersCalc calc(home);
    const auto menu = calc.menu_bar();
    const auto place = std::ranges::find(menu, u"~QOR Plus");
    REQUIRE(place != menu.end());
    CHECK(*std::next(place) == u".uno:HelpMenu");
    CHECK(std::ranges::count(menu, u"~QOR Plus") == 1);
    calc.key("alt+q");
    calc.take_picture("calc-menu");
    calc.keys({"Escape", "Escape"});

    calc.open_options();
    calc.keys({"shift+Tab", "space"});  // Help, on its place for this dialog
    CHECK(comes_to([&] { return home.opened_address().ends_with("/help.html#170125"); }));
    CAPTURE(home.opened_address());
    calc.key("Escape");
    REQUIRE(calc.loses("QOR Plus: Options"));
    CHECK(home.setting("chkT1AutoAdjWin") == "none");

    calc.open_options();
    calc.keys({"Tab", "space", "ctrl+Page_Down"});
    calc.keys({"Tab", "space", "Tab"});
    calc.type("/tmp/plan.xlt");
    calc.key("ctrl+Page_Down");
    for (int tab = 2; tab < 5; ++tab) calc.keys({"Tab", "space", "ctrl+Page_Down"});
    calc.keys({"Tab", "7"});
    calc.take_picture("calc-options");
    calc.key("shift+Tab");
    calc.keys({"shift+Tab", "shift+Tab", "space"});  // round to Help, and on to Apply
    CHECK(comes_to([&] { return home.setting("txtT6InsRow") != "none"; }));
    CHECK(home.setting("chkT1AutoAdjWin") == "-1");
    CHECK(home.setting("chkT2AlternateTemplate") == "-1");
    CHECK(home.setting("txtT2AlternateTemplateFile") == "/tmp/plan.xlt");
    CHECK(home.setting("chkT3SaveWorkbooksEvery") == "-1");
    CHECK(home.setting("chkT4ShowHiddenWorksheets") == "-1");
    CHECK(home.setting("chkT5ReportNewWorkbook") == "-1");
    CHECK(home.setting("txtT6InsRow") == "7");
    CHECK(home.setting("chkT4UseCellEvents") == "none");
    CHECK(calc.sees_window("QOR Plus: Options"));

    const std::string applied = home.settings();
    calc.keys({"ctrl+Page_Up"});
    calc.key("Escape");
    REQUIRE(calc.loses("QOR Plus: Options"));
    CHECK(home.settings() == applied);
}

}  // namespace qor::calc::tests
