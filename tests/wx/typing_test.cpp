#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

TEST_CASE_FIXTURE(EveryKind, "what is typed goes into the control, and what the form sets is shown") {
    show([&](User& user) {
        user.click("txtName");
        user.type("Rent");
        CHECK((form.txtName.text() == u"Rent"));
        user.on_screen([&] { form.txtName.set_text(u"Tax & rent"); });
        user.settle();
        CHECK(user.shown_text("txtName") == "Tax & rent");
        user.on_screen([&] { form.lblName.set_text(u"R&D"); });
        user.settle();
        user.on_screen([&] { CHECK(window_of<wxWindow>("lblName").GetLabel() == "R&&D"); });
    });
}

TEST_CASE_FIXTURE(EveryKind, "a text of any length and script is shown, typed on, and kept where it is not touched") {
    const std::u16string scripts = u"\u0416\u05D0\u0627\u0E01\u65E5e\u0301\U0001F600\u202Ex";
    std::u16string endless;
    while (endless.size() < 200000) endless += scripts;
    const std::u16string broken{u'a', 0xD83D, u'b', 0};  // half of a pair, and a character that ends texts elsewhere
    show([&](User& user) {
        for (TextEntry* entry : std::vector<TextEntry*>{&form.txtName, &form.spnMinutes, &form.txtFolder}) {
            const std::string name = to_utf8(entry->name());
            CAPTURE(name);
            user.on_screen([&] { entry->set_text(scripts); });
            user.settle();
            CHECK(user.shown_text(name) == to_utf8(scripts));
            user.click(name);
            user.key("End");
            user.type("7");
            CHECK((entry->text() == scripts + u"7"));
            for (const std::u16string& text : {endless, broken}) {
                user.on_screen([&, own = text] { entry->set_text(own); });
                user.settle();
                CHECK((entry->text() == text));
            }
            user.on_screen([&] { entry->set_text(u"5"); });
            user.settle();
            CHECK(user.shown_text(name) == "5");
        }
    });
}

TEST_CASE_FIXTURE(EveryKind, "a locked text takes no typing") {
    form.txtName.set_locked(true);
    show([&](User& user) {
        user.click("txtName");
        user.type("x");
        CHECK(form.txtName.text().empty());
    });
}

TEST_CASE_FIXTURE(EveryKind, "the focus comes and goes once each") {
    show([&](User& user) {
        user.settle();
        form.log.clear();
        user.click("txtFolder");
        CHECK(to_utf8(form.log) == "leave ");
        user.click("txtName");
        CHECK(to_utf8(form.log) == "leave enter ");
        user.key("Tab");
        CHECK(to_utf8(form.log) == "leave enter leave ");
    });
}

TEST_CASE_FIXTURE(EveryKind,
                  "a spin box takes digits, is selected when it gets the focus, and counts with its arrows") {
    form.optOrder.choose(0);
    show([&](User& user) {
        user.key("Tab");  // chkPath
        user.key("Tab");  // optOrder
        user.key("Tab");  // cboPlace
        user.key("Tab");
        REQUIRE(user.focus(form) == "spnMinutes");
        user.type("a-59");
        CHECK((form.spnMinutes.text() == u"59"));
        user.key("BackSpace");
        CHECK((form.spnMinutes.text() == u"59"));
        user.key("Up");
        CHECK((form.spnMinutes.text() == u"60"));
        user.key("Up");
        CHECK((form.spnMinutes.text() == u"60"));
        user.key("Down");
        CHECK(user.shown_text("spnMinutes") == "59");
    });
}

TEST_CASE_FIXTURE(EveryKind, "a spin box counts by its buttons, which leave the focus in the text") {
    show([&](User& user) {
        wxSize size;
        wxSize arrows;
        user.on_screen([&] {
            const wxWindow& box = window_of<wxWindow>("spnMinutes");
            size = box.GetSize();
            arrows = box.GetChildren().back()->GetSize();
        });
        // GTK draws less before more.
        user.click_in("spnMinutes", {size.x - arrows.x / 4, size.y / 2});
        CHECK((form.spnMinutes.text() == u"11"));
        user.click_in("spnMinutes", {size.x - arrows.x * 3 / 4, size.y / 2});
        user.click_in("spnMinutes", {size.x - arrows.x * 3 / 4, size.y / 2});
        CHECK((form.spnMinutes.text() == u"9"));
        CHECK(user.focus(form) == "spnMinutes");
    });
}

TEST_CASE_FIXTURE(EveryKind, "a pick box is picked by its button and by Alt with Down Arrow") {
    show([&](User& user) {
        user.click("txtFolder");
        form.log.clear();
        user.key("alt+Down");
        CHECK(to_utf8(form.log) == "pick ");
        user.click("pick");
        CHECK(to_utf8(form.log) == "pick pick ");
        user.on_screen([&] { form.txtFolder.set_text(u"/tmp"); });
        user.settle();
        CHECK(user.shown_text("txtFolder") == "/tmp");
    });
}
