#include <thread>

#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/adapter/user/office_user.hpp"
#include "platform/ini_settings_store.hpp"
#include "screens/wx/wx_screen.hpp"
#include "services/ctlCellRef.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/calc/support/office_loop.hpp"
#include "tests/fakes/in_place.hpp"
#include "tests/window/hand.hpp"
#include "tests/wx/user.hpp"
#include "ui/button.hpp"
#include "ui/text_box.hpp"

namespace qor::wx {
const Layouts& picking_layouts();
}

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;
using qor::tests::User;
namespace hand = qor::tests::hand;

class frmPick final : public Form {
  public:
    explicit frmPick(Screen& screen) : Form(u"frmPick", screen) {
        txtRange.AppTitle = u"Pick a range";
        txtRange.let_form_step_aside();
        cmdButton.on_click = [this](int) { unload(); };
    }
    std::u16string_view caption() const noexcept override { return u"Pick a range"; }

    TextBox txtName{*this, u"txtName"};
    ctlCellRef txtRange{*this, u"txtRange"};
    Buttons cmdButton{*this, u"cmdButton", {{1, u"Cancel"}}};
};

// A form over Calc's window whose box picks a range there.
struct Picking {
    Calc calc;
    Object book = calc.add_book();
    WxScreen screen{{}, wx::picking_layouts()};
    IniSettingsStore settings{calc.folder() / "settings.ini"};
    fakes::InPlace in_place{{screen, settings}, make_application(office_context(), office_user(office_context()))};
    frmPick form{screen};

    Picking() { let_office_work(500ms); }

    std::u16string selected() const {
        return *calc.application.get(names::Selection).get(names::Address).get_if<std::u16string>();
    }

    // Opens the form, writes into it, presses the button of its box, and lets the user pick.
    void pick(const std::function<void(User&)>& script) {
        qor::tests::show(
            form, [&] { screen.close_all(); },
            [&](User& user) {
                user.click("txtName");
                user.type("kept");
                user.click("txtRange");
                user.key("alt+Down");
                REQUIRE(user.sees([&] { return !form.visible(); }));
                std::this_thread::sleep_for(500ms);
                script(user);
                REQUIRE(user.sees_dialog("Pick a range"));
                CHECK(user.shown_text("txtName") == "kept");
                user.key("Escape");
            });
    }
};

void drag_over_cells() {
    const int from[] = {164, 226};  // B3
    const int to[] = {246, 262};    // C5
    hand::move(from[0], from[1]);
    hand::press();
    std::this_thread::sleep_for(100ms);
    hand::move(to[0], to[1]);
    std::this_thread::sleep_for(100ms);
    hand::release();
    std::this_thread::sleep_for(300ms);
}

}  // namespace

TEST_CASE_FIXTURE(Picking, "a range is picked by the pointer while the dialog is away, and it comes back with it") {
    pick([](User&) {
        drag_over_cells();
        if (const char* folder = std::getenv("QORPLUS_PICTURES"))
            hand::take_picture(0, 0, 1280, 800, std::string(folder) + "/calc-picking.png");
        hand::move(827, 400);  // the one button of the office's box
        hand::press();
        hand::release();
    });
    CHECK((form.txtRange.box.text() == u"B3:C5"));
    CHECK((selected() == u"$B$3:$C$5"));
}

TEST_CASE_FIXTURE(Picking, "a range that is not picked leaves the box as it was") {
    form.txtRange.box.set_text(u"A7");
    pick([](User&) { hand::key("Escape"); });
    CHECK((form.txtRange.box.text() == u"A7"));
}

}  // namespace qor::calc::tests
