#include "tests/tree/tree_host.hpp"

using namespace qor;
using namespace qor::tests;

TEST_CASE_FIXTURE(TwoBooks, "the menu holds its commands in four groups") {
    press(on(u"ROOT"), MouseButton::right);
    REQUIRE(tree.treQOR.popup());
    Lines lines;
    for (const auto& command : tree.treQOR.popup()->commands())
        lines.push_back((command.begins_group ? u"-" : u"") + command.id + u"/" + command.caption);
    CHECK(lines == Lines{u"ID_CloseAll/Close All", u"ID_CloseChecked/Close Checked", u"-ID_SaveAll/Save All",
                         u"ID_SaveChecked/Save Checked", u"-ID_DeleteWorksheet/Delete Worksheet",
                         u"ID_RenameWorksheet/Rename Worksheet", u"-ID_PrintAll/Print All",
                         u"ID_PrintChecked/Print Checked"});
}

TEST_CASE_FIXTURE(TwoBooks, "the right button selects the node, and only a worksheet can be deleted and renamed") {
    const auto enabled = [&] {
        std::size_t count = 0;
        for (const auto& command : tree.treQOR.popup()->commands()) count += command.enabled ? 1 : 0;
        return count;
    };
    for (const auto* key : {u"ROOT", u"plan.xls:1"}) {
        press(on(key), MouseButton::right);
        CHECK(tree.treQOR.selected() == &node(key));
        CHECK(enabled() == 6);
    }
    press(on(u"plan.xls:2*Loan"), MouseButton::right);
    CHECK(tree.treQOR.selected() == &node(u"plan.xls:2*Loan"));
    CHECK(enabled() == 8);
    CHECK(check_states.empty());
    press({.x = 900, .y = 5000}, MouseButton::right);  // below all: everything stays as it was
    CHECK(tree.treQOR.selected() == &node(u"plan.xls:2*Loan"));
    CHECK(enabled() == 8);
}

TEST_CASE_FIXTURE(TwoBooks, "there is no menu over a check box or the lines") {
    press(*tree.treQOR.picture_point(node(u"Book2")), MouseButton::right);
    CHECK(tree.treQOR.popup() == nullptr);
    press({.x = 100, .y = on(u"Book2").y}, MouseButton::right);
    CHECK(tree.treQOR.popup() == nullptr);
}

TEST_CASE_FIXTURE(TwoBooks, "Close All closes every workbook as the option says, and the form") {
    settings.set_option(u"chkT3AutoSaveB4Close", u"-1");
    choose_on(u"ROOT", u"Close All");
    CHECK(done == Lines{u"plan.xls close True", u"Book2 close"});
    CHECK(closing == std::vector<bool>{true});
}

TEST_CASE_FIXTURE(TwoBooks, "Close Checked closes the workbooks of checked windows") {
    check(u"plan.xls:2");
    choose_on(u"ROOT", u"Close Checked");
    CHECK(done == Lines{u"plan.xls close"});
    CHECK(closing == std::vector<bool>{true});
}

TEST_CASE_FIXTURE(TwoBooks, "Save All saves what has changed and asks where a new workbook goes") {
    choose_on(u"ROOT", u"Save All");
    CHECK(done == Lines{u"plan.xls save", u"ask Book2 Microsoft Excel Workbook (*.xls), *.xls"});
    CHECK(closing.empty());
}

TEST_CASE_FIXTURE(TwoBooks, "Save Checked goes on behind a workbook that stays unsaved") {
    check(u"Book2");
    check(u"plan.xls:1");
    choose_on(u"ROOT", u"Save Checked");
    CHECK(done == Lines{u"plan.xls save", u"ask Book2 Microsoft Excel Workbook (*.xls), *.xls"});
}

TEST_CASE_FIXTURE(TwoBooks, "Print All prints every worksheet once, Print Checked one that is checked twice, twice") {
    choose_on(u"ROOT", u"Print All");
    CHECK(done == Lines{u"Inputs print", u"Loan print", u"Ratios print", u"Notes print", u"Draft print"});
    done.clear();
    check(u"plan.xls:1*Loan");
    check(u"plan.xls:2*Loan");
    check(u"Book2*Draft");
    choose_on(u"ROOT", u"Print Checked");
    CHECK(done == Lines{u"Loan print", u"Loan print", u"Draft print"});
}

TEST_CASE_FIXTURE(TwoBooks, "a double click on a worksheet goes there and closes the form") {
    press(on(u"plan.xls:2*Loan"), MouseButton::left);
    tree.treQOR.double_click();
    CHECK(done == Lines{u"plan.xls:2 activate", u"Loan activate"});
    CHECK(closing == std::vector<bool>{true});
}

TEST_CASE_FIXTURE(TwoBooks, "a double click on a window, a check box or nothing does nothing") {
    for (const Pointer& place : {on(u"Book2"), on(u"ROOT"), *tree.treQOR.picture_point(node(u"Book2*Notes")),
                                 Pointer{.x = 100, .y = on(u"Book2*Notes").y}, Pointer{.x = 900, .y = 5000}}) {
        tree.treQOR.move_pointer(place);
        tree.treQOR.double_click();
    }
    CHECK(done.empty());
    CHECK(closing.empty());
}

TEST_CASE_FIXTURE(TreeHost, "a double click shows what is hidden") {
    settings.set_options({{u"chkT3ShowHiddenWorkbooks", u"-1"}, {u"chkT4ShowHiddenWorksheets", u"-1"}});
    open({{u"plan.xls", {u"Hidden window"}, {u"One", u"Hidden sheet"}}});
    tree.treQOR.move_pointer(on(u"Hidden window*Hidden sheet"));
    tree.treQOR.double_click();
    CHECK(done == Lines{u"Hidden window visible True", u"Hidden window activate", u"Hidden sheet visible True",
                        u"Hidden sheet activate"});
}

TEST_CASE_FIXTURE(TwoBooks, "what the host refuses of a command is passed over") {
    host_log.refuses = [](std::u16string_view type, std::u16string_view member, Access) {
        return type == u"Window" || member == u"Close" || member == u"Saved";
    };
    check(u"ROOT");
    choose_on(u"ROOT", u"Save Checked");
    CHECK(done == Lines{u"ask Book2 Microsoft Excel Workbook (*.xls), *.xls"});
    choose_on(u"ROOT", u"Close Checked");
    CHECK(closing == std::vector<bool>{true});
    choose_on(u"ROOT", u"Close All");
    CHECK(closing == std::vector<bool>{true, true});
    done.clear();
    tree.treQOR.move_pointer(on(u"plan.xls:2*Loan"));
    tree.treQOR.double_click();
    CHECK(done == Lines{u"Loan activate"});
    CHECK(closing.size() == 3);
}
