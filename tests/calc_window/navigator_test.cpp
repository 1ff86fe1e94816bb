#include "tests/calc/support/sheet_names.hpp"
#include "tests/calc_window/dialog_run.hpp"
#include "tests/window/hand.hpp"

// The tree of workbooks as its user meets it: by the pointer and the keyboard, over Calc's window.
namespace qor::calc::tests {
namespace {

using qor::tests::User;
namespace hand = qor::tests::hand;

constexpr const char* tree = "ctlTreeView";

// The rows: 0 the root, 1 the window, 2 to 4 its sheets.
struct Navigator : DialogRun {
    Navigator() { give_sheets(book, {u"One", u"Two", u"Three"}); }

    void open(const std::function<void(User&)>& script) const {
        DialogRun::open(u"UTNav", "QOR Plus: Navigator", [&](User& user) {
            user.click_in(tree, text(user, 1, 2));
            user.key("Right");
            script(user);
        });
    }
    // On the thread of the windows, where Calc may be asked.
    std::string sheets(User& user) const {
        std::string found;
        user.on_screen([&] { found = sheet_names(book); });
        return found;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Navigator, "a sheet is dragged to another place, and with Ctrl copied there") {
    open([&](User& user) {
        user.drag(tree, text(user, 2, 3), text(user, 4, 3));
        CHECK(sheets(user) == "Two/Three/One/");
        user.begin_drag(tree, text(user, 3, 3), text(user, 1, 2));
        hand::hold_key("ctrl");
        user.settle();
        user.end_drag();
        hand::let_key_go("ctrl");
        user.settle();
        CHECK(sheets(user) == "Three (2)/Two/Three/One/");
        user.begin_drag(tree, text(user, 2, 3), text(user, 5, 3));
        user.key("Escape");
        user.end_drag();
        CHECK(sheets(user) == "Three (2)/Two/Three/One/");
    });
}

TEST_CASE_FIXTURE(Navigator,
                  "a sheet is renamed from the menu, deleted by the keyboard, and opened by a double click") {
    open([&](User& user) {
        user.click_in(tree, text(user, 3, 3), 3);
        keep_picture("navigator-menu");
        for (int up = 0; up < 3; ++up) user.key("Up");  // from the end: Print Checked, Print All, Rename Worksheet
        user.key("Return");
        user.settle();
        user.type("Loan");
        user.key("Return");
        CHECK(sheets(user) == "One/Loan/Three/");

        user.click_in(tree, text(user, 2, 3));
        user.key("Delete");
        CHECK(user.sees_dialog("QOR Plus"));
        user.key("Escape");
        CHECK(sheets(user) == "One/Loan/Three/");
        CHECK(user.sees_dialog("QOR Plus: Navigator"));
        user.key("Delete");
        CHECK(user.sees_dialog("QOR Plus"));
        user.key("Return");
        CHECK(user.sees_dialog("QOR Plus: Navigator"));
        CHECK(sheets(user) == "Loan/Three/");

        user.click_in(tree, text(user, 3, 3));
        user.click_again();
    });
    CHECK(calc.application.get(names::ActiveSheet).get(names::Name) == u"Three");
}

TEST_CASE_FIXTURE(Navigator, "worksheets are sorted through their dialog") {
    DialogRun::open(u"UTSorWor", "QOR Plus: Sort Worksheets", [&](User& user) {
        check(user, 1, 2);
        user.click("optOrder");
        user.click("cmdButton(0)");
    });
    CHECK(sheet_names(book) == "One/Three/Two/");
}

}  // namespace qor::calc::tests
