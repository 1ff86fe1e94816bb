#include <wx/toplevel.h>

#include <cmath>

#include "tests/calc_window/dialog_run.hpp"
#include "tests/window/hand.hpp"

namespace qor::calc::tests {
namespace {

using qor::tests::User;
using qor::tests::window_of;

struct Tool : DialogRun {
    void open(const std::function<void(User&)>& script) const {
        DialogRun::open(u"UTWorSum", "QOR Plus: Worksheet Summary", script);
    }
    std::int32_t workbooks() const {
        return *calc.application.get(names::Workbooks).get(names::Count).get_if<std::int32_t>();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Tool, "the report is made through its dialog, over Calc's window, by the pointer") {
    const std::int32_t before = workbooks();
    open([&](User& user) {
        check(user, 0, 1);
        keep_picture("worksheet-summary-dialog");
        user.click("cmdButton(0)");
    });
    CHECK(workbooks() == before + 1);
    const Object report = calc.application.get(names::ActiveSheet).object();
    CHECK(report.get(names::Cells, 1, 1).get(names::Value) == u"Report - Worksheet Summary");
    CHECK(report.get(names::Cells, 5, 1).get(names::Value) == u"Workbook Name");
}

TEST_CASE_FIXTURE(Tool, "the fields of every report are moved and left out by the pointer") {
    struct Dialog {
        const char16_t* tool;
        const char* title;
        const char16_t* third_field;
        const char16_t* fourth_field;
    };
    constexpr Dialog dialogs[]{
        {u"UTCelInf", "QOR Plus: Cell Information", u"Cell Address", u"Cell Row"},
        {u"UTDatRev", "QOR Plus: Date Review", u"Cell Address", u"Cell Row"},
        {u"UTWokSum", "QOR Plus: Workbook Summary", u"Category", u"Company"},
        {u"UTWorSum", "QOR Plus: Worksheet Summary", u"Protected Contents", u"Protected Drawing Objects"},
    };
    const char* const fields = "treCellInfo";
    for (const Dialog& dialog : dialogs) {
        CAPTURE(std::string(dialog.title));
        DialogRun::open(dialog.tool, dialog.title, [&](User& user) {
            constexpr int in_box = 12;  // a list without branches has its boxes at the edge
            user.click_in(fields, {in_box, box(user, 1, 1).y});
            user.drag(fields, text(user, 2, 1), text(user, 0, 1));
            check(user, 0, 1);
            user.click("cmdButton(0)");
        });
        const Object report = calc.application.get(names::ActiveSheet).object();
        CHECK(report.get(names::Cells, 5, 1).get(names::Value) == dialog.third_field);
        CHECK(report.get(names::Cells, 5, 2).get(names::Value) == u"Workbook Name");
        CHECK(report.get(names::Cells, 5, 3).get(names::Value) == dialog.fourth_field);
    }
}

TEST_CASE_FIXTURE(
    Tool,
    "while the dialog is open, Calc's window takes neither pointer nor keyboard; the dialog stands over its middle") {
    const auto selected = [&] { return utf8(calc.application.get(names::Selection).get(names::Address)); };
    REQUIRE(selected() == "$A$1");
    open([&](User& user) {
        const wxPoint corner_of_grid{1000, 650};
        qor::tests::hand::move(corner_of_grid.x, corner_of_grid.y);
        qor::tests::hand::press();
        qor::tests::hand::release();
        user.settle();
        user.key("Down");
        wxRect place;
        user.on_screen([&] {
            CHECK(selected() == "$A$1");
            place = wxGetTopLevelParent(&window_of<wxWindow>("ctlTreeView"))->GetScreenRect();
        });
        CHECK(std::abs(place.x + place.width / 2 - 640) < 40);
        CHECK(std::abs(place.y + place.height / 2 - 400) < 40);
    });
}

TEST_CASE_FIXTURE(Tool, "a message over Calc's window is answered") {
    MessageAnswer answer{};
    qor::tests::play(
        [&] { answer = message_box({.title = u"Save", .text = u"Now?", .buttons = MessageButtons::yes_no}); },
        close_dialogs,
        [](User& user) {
            REQUIRE(user.sees_dialog("Save"));
            user.key("Return");
        });
    CHECK(answer == MessageAnswer::yes);
}

TEST_CASE_FIXTURE(Tool, "Escape closes the dialog, and nothing is added") {
    const std::int32_t before = workbooks();
    open([&](User& user) { user.key("Escape"); });
    CHECK(workbooks() == before);
}

TEST_CASE_FIXTURE(Tool, "dialogs are told to close, and say whether there were any") {
    const std::int32_t before = workbooks();
    CHECK_FALSE(close_dialogs());
    bool open_before = false;
    open([&](User& user) { user.on_screen([&] { open_before = close_dialogs(); }); });
    CHECK(open_before);
    CHECK_FALSE(close_dialogs());
    CHECK(workbooks() == before);
}

}  // namespace qor::calc::tests
