#include <doctest/doctest.h>

#include "automation/error.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/label.hpp"
#include "ui/options.hpp"
#include "ui/text_box.hpp"

using namespace qor;

namespace {

class frmSample final : public Form {
  public:
    explicit frmSample(Screen& screen) : Form(u"frmSample", screen) {}

    Label lblText{*this, u"lblText", u"text"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};
    CheckBox chkSample{*this, u"chkSample", u"Sample"};

    int loads = 0;
    int unloads = 0;
    bool fails = false;
    bool gives_up = false;

    std::u16string_view caption() const noexcept override { return u"Sample"; }

  protected:
    void on_load() override {
        ++loads;
        if (fails) throw Error(ErrorNumber::host_refused);
        if (gives_up) unload();
    }
    void on_unload() override { ++unloads; }
};

using Log = std::vector<std::u16string>;

}  // namespace

TEST_CASE("a form lists its controls in the order in which they stand in it, each button by itself") {
    fakes::FakeScreen screen;
    const frmSample form(screen);
    std::vector<std::u16string> names;
    for (const Control* control : form.controls()) names.push_back(control->name());
    CHECK(names ==
          std::vector<std::u16string>{u"lblText", u"cmdButton(0)", u"cmdButton(1)", u"cmdButton(4)", u"chkSample"});
}

TEST_CASE("a form is loaded once, however often it is shown") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    form.load();
    CHECK(form.loads == 1);
    CHECK(screen.log.empty());
    form.show(nullptr);
    form.hide();
    form.show_modal();
    CHECK(form.loads == 1);
    CHECK(screen.log == Log{u"modeless frmSample", u"hide frmSample", u"modal frmSample"});
}

TEST_CASE("a form is unloaded once, and only if it was loaded") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    form.unload();
    CHECK(form.unloads == 0);
    form.load();
    form.unload();
    form.unload();
    CHECK(form.unloads == 1);
    CHECK_FALSE(form.loaded());
    CHECK(screen.log == Log{u"unload frmSample"});
}

TEST_CASE("hiding what is not visible does nothing") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    form.load();
    form.hide();
    CHECK(screen.log.empty());
}

TEST_CASE("an error while loading is raised on, and the form is not loaded and not shown") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    form.fails = true;
    CHECK_THROWS_AS(form.show_modal(), Error);
    CHECK_FALSE(form.loaded());
    CHECK_FALSE(form.visible());
    CHECK(screen.log.empty());
}

TEST_CASE("a form that unloads itself while it is loading is not shown") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    form.gives_up = true;
    form.show_modal();
    CHECK(screen.log == Log{u"unload frmSample"});
    CHECK_FALSE(form.visible());
}

TEST_CASE("the window of a form that is destroyed while it is loaded goes too") {
    fakes::FakeScreen screen;
    { frmSample(screen).show(nullptr); }
    CHECK(screen.log == Log{u"modeless frmSample", u"unload frmSample"});
}

TEST_CASE("a form that hides and shows itself again in one event is still in its first wait") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    form.cmdButton.on_click = [&](int) {
        form.hide();
        CHECK_FALSE(form.visible());
        form.show_modal();
        CHECK(form.visible());
    };
    screen.while_modal = [&](Form&) { form.cmdButton(0).press(); };
    form.show_modal();
    CHECK(screen.log == Log{u"modal frmSample", u"hide frmSample", u"again frmSample"});
    CHECK(form.loads == 1);
    form.hide();
    screen.while_modal = {};
    form.show_modal();
    CHECK(screen.log.back() == u"modal frmSample");
}

TEST_CASE("an error in a handler goes through the modal form to the command that showed it") {
    fakes::FakeScreen screen;
    {
        frmSample form(screen);
        form.cmdButton.on_click = [](int) { throw Error(ErrorNumber::host_refused); };
        screen.while_modal = [&](Form&) { form.cmdButton(0).press(); };
        CHECK_THROWS_AS(form.show_modal(), Error);
    }
    CHECK(screen.log.back() == u"unload frmSample");
}

TEST_CASE("a button of an array tells its index, and says nothing while it is disabled") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    std::vector<int> pressed;
    form.cmdButton.on_click = [&](int index) { pressed.push_back(index); };
    form.cmdButton(4).press();
    form.cmdButton(0).set_enabled(false);
    form.cmdButton(0).press();
    form.cmdButton(1).press();
    CHECK(pressed == std::vector<int>{4, 1});
}

TEST_CASE("a control tells its screen when something to be seen has changed, and only then") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    int changes = 0;
    form.lblText.changed = [&] { ++changes; };
    form.lblText.set_text(u"text");
    CHECK(changes == 0);
    form.lblText.set_text(u"other");
    form.lblText.set_enabled(false);
    CHECK(changes == 2);
}

TEST_CASE("check boxes, option groups and text boxes raise their event when their value changes") {
    fakes::FakeScreen screen;
    frmSample form(screen);
    Options optOrder(form, u"optOrder", {u"Beginning", u"End"});
    TextBox txtName(form, u"txtName", u"old");
    std::vector<std::u16string> events;
    form.chkSample.on_click = [&] { events.emplace_back(u"check"); };
    optOrder.on_click = [&](int place) { events.emplace_back(place == 1 ? u"End" : u"Beginning"); };
    txtName.on_change = [&] { events.push_back(txtName.text()); };

    CHECK(optOrder.chosen() == Options::none);
    form.chkSample.set_checked(true);
    form.chkSample.set_checked(true);
    optOrder.choose(1);
    optOrder.choose(1);
    txtName.set_text(u"old");
    txtName.set_text(u"new");
    CHECK(events == std::vector<std::u16string>{u"check", u"End", u"new"});
}
