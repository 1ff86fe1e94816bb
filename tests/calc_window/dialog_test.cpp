#include <wx/toplevel.h>

#include <cmath>
#include <cstdlib>

#include "core/CCom.hpp"
#include "core/MMain.hpp"
#include "hosts/calc/companion/office/loaded_screen.hpp"
#include "platform/ini_settings_store.hpp"
#include "tests/calc/fixture.hpp"
#include "tests/calc/office_loop.hpp"
#include "tests/window/hand.hpp"
#include "tests/wx/user.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;
using qor::tests::User;
using qor::tests::window_of;

constexpr const char* title = "QOR Plus: Worksheet Summary";

LoadedScreen& windows() {
    static LoadedScreen screen(office_context());  // once: the toolkit cannot be started again
    return screen;
}

void close_dialogs() {
    windows().close_dialogs();
}

struct Tool {
    Calc calc;
    IniSettingsStore settings{calc.folder() / "settings.ini"};
    Object com;
    Object book = calc.add_book();

    Tool() {
        set_environment({windows(), settings});
        com = make_object<CCom>();
        calc.application.get(names::ActiveSheet).get(names::Range, u"A1").put(names::Value, 12.0);
        let_office_work(500ms);
    }

    // Opens the dialog as a macro does, while the user plays.
    void open(const std::function<void(User&)>& script) {
        qor::tests::play([&] { com.call(MemberName(u"UTWorSum"), calc.application); }, close_dialogs,
                         [&](User& user) {
                             if (!user.sees_dialog(title)) throw std::runtime_error("the dialog did not open");
                             script(user);
                         });
    }

    std::int32_t workbooks() const {
        return *calc.application.get(names::Workbooks).get(names::Count).get_if<std::int32_t>();
    }
};

// The box of the row, from 0, at that level of the tree of workbooks.
void check(User& user, int row, int level) {
    wxPoint box;
    user.on_screen([&] {
        const auto& tree = window_of<wxWindow>("ctlTreeView");
        const double height = std::ceil(tree.GetCharHeight() * 1.25);
        const double scale = height / 255;
        box = {static_cast<int>((285 * level + 82) * scale), static_cast<int>((row + 0.5) * height)};
    });
    user.click_in("ctlTreeView", box);
}

// As take_picture does, but while a dialog has the main thread.
void keep_picture(const std::string& name) {
    const char* folder = std::getenv("QORPLUS_PICTURES");
    if (folder) qor::tests::hand::take_picture(0, 0, 1280, 800, std::string(folder) + '/' + name + ".png");
}

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
        [&] { answer = windows().message_box({.title = u"Save", .text = u"Now?", .buttons = MessageButtons::yes_no}); },
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
    CHECK_FALSE(windows().close_dialogs());
    bool open_before = false;
    open([&](User& user) { user.on_screen([&] { open_before = windows().close_dialogs(); }); });
    CHECK(open_before);
    CHECK_FALSE(windows().close_dialogs());
    CHECK(workbooks() == before);
}

}  // namespace qor::calc::tests
