#include <fmt/ranges.h>

#include "screens/wx/accessible.hpp"
#include "screens/wx/text.hpp"
#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

TEST_CASE_FIXTURE(EveryKind, "Enter presses OK wherever the focus is, but not while OK is disabled") {
    form.on_button = [&](int index) {
        if (index == 0) form.hide();
    };
    form.cmdButton(0).set_enabled(false);
    show([&](User& user) {
        user.key("Return");
        CHECK((form.log.find(u"OK") == std::u16string::npos));
        user.on_screen([&] { form.cmdButton(0).set_enabled(true); });
        user.on_screen([] { window_of<wxWindow>("treMain").SetFocus(); });
        user.settle();
        user.key("ctrl+Return");
        CHECK((form.log.find(u"OK") == std::u16string::npos));
        user.key("Return");
        CHECK((form.log.find(u"OK ") != std::u16string::npos));
        CHECK_FALSE(form.visible());
    });
    CHECK(form.loaded());
}

TEST_CASE_FIXTURE(EveryKind, "Enter on a button presses that one") {
    show([&](User& user) {
        user.on_screen([] { window_of<wxWindow>("cmdButton(4)").SetFocus(); });
        user.settle();
        user.key("Return");
        CHECK((form.log.find(u"Help ") != std::u16string::npos));
        CHECK((form.log.find(u"OK ") == std::u16string::npos));
    });
}

TEST_CASE_FIXTURE(EveryKind, "Escape and closing the window are the Cancel button") {
    SUBCASE("by Escape") {
        show([&](User& user) { user.key("Escape"); });
    }
    SUBCASE("by the window manager") {
        show([&](User& user) { user.key("alt+F4"); });
    }
    CHECK((form.log.find(u"Cancel ") != std::u16string::npos));
    CHECK_FALSE(form.loaded());
}

TEST_CASE_FIXTURE(EveryKind,
                  "a control that is disabled while it has the focus hands it on, and keys go on reaching the dialog") {
    show([&](User& user) {
        user.click("txtName");
        REQUIRE(user.focus(form) == "txtName");
        user.on_screen([&] { form.txtName.set_enabled(false); });
        user.settle();
        CHECK(user.focus(form) == "chkPath");
        user.key("Escape");
    });
    CHECK((form.log.find(u"Cancel ") != std::u16string::npos));
}

TEST_CASE_FIXTURE(EveryKind, "a press on Cancel's button unloads the form") {
    show([&](User& user) { user.click("cmdButton(1)"); });
    CHECK(to_utf8(form.log) == "enter leave Cancel ");
}

TEST_CASE_FIXTURE(EveryKind, "the keyboard goes through the controls in their order") {
    std::vector<std::string> order;
    show([&](User& user) {
        std::string focus = user.focus(form);
        while (order.empty() || focus != order.front()) {
            if (order.empty() || order.back() != focus) order.push_back(focus);
            if (order.size() > 30) break;
            user.key("Tab");
            focus = user.focus(form);
        }
    });
    CAPTURE(fmt::format("{}", fmt::join(order, " ")));
    CHECK(order == std::vector<std::string>{"txtName", "chkPath", "optOrder", "cboPlace", "spnMinutes", "txtFolder",
                                            "txtDate", "cmdColor", "tabMain", "txtFirst", "chkInside", "lstMain",
                                            "treMain", "cmdButton(0)", "cmdButton(1)", "cmdButton(4)"});
}

TEST_CASE_FIXTURE(EveryKind, "a form may hide and show itself again inside one event, and keeps its state") {
    form.on_button = [&](int index) {
        if (index != 4) return;
        form.hide();
        form.txtFolder.set_text(u"B2:B9");
        form.show_modal();
    };
    show([&](User& user) {
        user.click("txtName");
        user.type("kept");
        user.click("cmdButton(4)");
        REQUIRE(user.sees_dialog("Every kind"));
        CHECK(user.shown_text("txtName") == "kept");
        CHECK(user.shown_text("txtFolder") == "B2:B9");
        user.type("!");
        CHECK(form.visible());
        user.key("Escape");
    });
    CHECK_FALSE(form.loaded());
}

TEST_CASE_FIXTURE(EveryKind, "a form that was away when the dialogs were told to close, closes when it is back") {
    form.on_button = [&](int index) {
        if (index != 4) return;
        form.hide();
        screen.close_all();
        form.show_modal();
    };
    show([&](User& user) {
        user.click("cmdButton(4)");
        CHECK(user.sees([&] { return !screen.dialog_open(); }));
    });
    CHECK_FALSE(form.loaded());
}

TEST_CASE_FIXTURE(EveryKind, "what a handler raises comes out of show_modal, and the screen is usable again") {
    form.on_button = [](int) { throw Error(ErrorNumber::invalid_call); };
    CHECK_THROWS_AS(show([&](User& user) { user.click("cmdButton(4)"); }), Error);
    form.unload();
    form.on_button = nullptr;
    show([&](User& user) { user.key("Escape"); });
    CHECK_FALSE(form.loaded());
}

TEST_CASE_FIXTURE(EveryKind, "a message over a dialog is answered, and the dialog goes on") {
    MessageAnswer answer{};
    form.on_button = [&](int index) {
        if (index != 4) return;
        answer = screen.message_box({.title = u"Save",
                                     .text = u"Save now?",
                                     .icon = MessageIcon::question,
                                     .buttons = MessageButtons::yes_no_cancel,
                                     .default_button = 1});
    };
    SUBCASE("by its default button") {
        show([&](User& user) {
            user.click("cmdButton(4)");
            user.key("Return");
            CHECK(form.visible());
        });
        CHECK(answer == MessageAnswer::no);
    }
    SUBCASE("by Escape") {
        show([&](User& user) {
            user.click("cmdButton(4)");
            user.key("Escape");
            CHECK(form.visible());
        });
        CHECK(answer == MessageAnswer::cancel);
    }
    SUBCASE("by closing all dialogs") {
        show([&](User& user) {
            user.click("cmdButton(4)");
            user.on_screen([&] {
                CHECK(screen.dialog_open());
                screen.close_all();
            });
            CHECK(user.sees([&] { return !screen.dialog_open(); }));
        });
        CHECK(answer == MessageAnswer::cancel);
        CHECK_FALSE(form.loaded());
    }
}

TEST_CASE_FIXTURE(EveryKind, "every message box offers its buttons, and its default is what Enter presses") {
    struct Case {
        MessageButtons buttons;
        std::uint8_t chosen;
        MessageAnswer answer;
    };
    for (const Case& each :
         {Case{MessageButtons::ok, 0, MessageAnswer::ok}, Case{MessageButtons::ok_cancel, 1, MessageAnswer::cancel},
          Case{MessageButtons::abort_retry_ignore, 0, MessageAnswer::abort},
          Case{MessageButtons::abort_retry_ignore, 1, MessageAnswer::retry},
          Case{MessageButtons::abort_retry_ignore, 2, MessageAnswer::ignore},
          Case{MessageButtons::yes_no, 0, MessageAnswer::yes}, Case{MessageButtons::yes_no, 1, MessageAnswer::no},
          Case{MessageButtons::yes_no_cancel, 2, MessageAnswer::cancel},
          Case{MessageButtons::retry_cancel, 0, MessageAnswer::retry}}) {
        MessageAnswer answer{};
        play(
            [&] {
                answer = screen.message_box(
                    {.title = u"Ask", .text = u"What?", .buttons = each.buttons, .default_button = each.chosen});
            },
            close,
            [](User& user) {
                REQUIRE(user.sees_dialog("Ask"));
                user.key("Return");
            });
        CHECK(answer == each.answer);
    }
}

TEST_CASE_FIXTURE(EveryKind, "a message that is told to close answers with what says no") {
    struct Case {
        MessageButtons buttons;
        MessageAnswer answer;
    };
    for (const Case& each :
         {Case{MessageButtons::ok, MessageAnswer::ok}, Case{MessageButtons::abort_retry_ignore, MessageAnswer::abort},
          Case{MessageButtons::yes_no_cancel, MessageAnswer::cancel}, Case{MessageButtons::yes_no, MessageAnswer::no},
          Case{MessageButtons::retry_cancel, MessageAnswer::cancel}}) {
        std::optional<MessageAnswer> answer;
        play([&] { answer = screen.message_box({.title = u"Ask", .text = u"What?", .buttons = each.buttons}); }, close,
             [](User& user) { REQUIRE(user.sees_dialog("Ask")); });
        CHECK(answer == each.answer);
    }
}

TEST_CASE_FIXTURE(EveryKind, "screen readers have a name for every control that takes the keyboard") {
    show([&](User& user) {
        user.on_screen([] {
            CHECK(wx::reader_name(window_of<wxWindow>("txtName")) == "Name");
            CHECK(wx::reader_name(window_of<wxWindow>("cboPlace")) == "Add the path");
            CHECK_FALSE(wx::reader_name(window_of<wxWindow>("treMain")).empty());
        });
    });
}

TEST_CASE_FIXTURE(EveryKind, "a form that does not fit its layout is refused") {
    wx::Layouts layouts = wx::test_layouts();
    std::string text(layouts.at(u"frmEveryKind"));
    const auto change = [&](const std::string& from, const std::string& to) {
        text.replace(text.find(from), from.size(), to);
        layouts[u"frmEveryKind"] = text;
    };
    SUBCASE("by a control too few") {
        change("<object class=\"Control\" name=\"txtName\"/>", "<object class=\"spacer\"/>");
    }
    SUBCASE("by a name too many") {
        change("name=\"txtName\"", "name=\"txtOther\"");
    }
    SUBCASE("by a name twice") {
        change("name=\"txtFolder\"", "name=\"txtName\"");
    }
    SUBCASE("by having none") {
        layouts.clear();
    }
    WxScreen narrow({}, layouts);
    frmEveryKind misfit(narrow);
    CHECK_THROWS_AS(misfit.show_modal(), std::logic_error);
    CHECK_FALSE(narrow.dialog_open());
}
