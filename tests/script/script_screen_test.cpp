#include <doctest/doctest.h>

#include "automation/error.hpp"
#include "platform/text.hpp"
#include "screens/script/script_screen.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/form.hpp"
#include "ui/label.hpp"
#include "ui/options.hpp"
#include "ui/progress_panel.hpp"
#include "ui/text_box.hpp"
#include "ui/tree_view.hpp"

using namespace qor;
using nlohmann::json;

namespace {

class frmSample final : public Form {
  public:
    explicit frmSample(Screen& screen) : Form(u"frmSample", screen) {
        cmdButton.on_click = [this](int index) { press(index); };
        treRows.on_picture_click = [](TreeNode& node) { node.set_image(3 - node.image()); };
        treRows.on_mouse_down = [this](const Pointer& at) { dragged = treRows.node_at(at.x, at.y); };
        treRows.on_mouse_move = [this](const Pointer& at) {
            if (at.button == MouseButton::left) treRows.begin_drag(3);
        };
        treRows.on_drop = [this](const Pointer& at) {
            events.push_back(to_utf8(dragged->text()) + " onto " + to_utf8(treRows.node_at(at.x, at.y)->text()));
        };
        txtName.on_change = [this] { events.push_back("name " + to_utf8(txtName.text())); };
        cmdButton(4).set_enabled(false);
        TreeNode& root = treRows.add(nullptr, Relationship::child, u"ROOT", u"All", 1);
        TreeNode& window = treRows.add(&root, Relationship::child, u"a.xls", u"a.xls", 2);
        treRows.add(&window, Relationship::child, u"a.xls*Über", u"Über", 1).set_italic(true);
    }

    Label lblText{*this, u"lblText", u"Größe"};
    TextBox txtName{*this, u"txtName", u"old"};
    CheckBox chkDeep{*this, u"chkDeep", u"Deep"};
    Options optOrder{*this, u"optOrder", {u"Beginning", u"End"}};
    ProgressPanel SSPanel1{*this, u"SSPanel1"};
    TreeView treRows{*this, u"treRows"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

    std::vector<std::string> events;
    const TreeNode* dragged = nullptr;
    bool cancel_is_deaf = false;

    std::u16string_view caption() const noexcept override { return u"Sample"; }
    std::int32_t help_id() const noexcept override { return 170000; }

  private:
    void press(int index) {
        events.push_back("press " + std::to_string(index));
        if (index == 0) hide();
        if (index == 1 && !cancel_is_deaf) unload();
    }
    void on_unload() override { events.emplace_back("unload"); }
};

struct Script {
    ScriptScreen screen;

    // Shows one form with the actions and answers what happened to it.
    std::vector<std::string> play(const json& actions) {
        screen.begin_call({{"forms", json::array({actions})}});
        frmSample form(screen);
        form.show_modal();
        screen.end_call();
        return form.events;
    }
    std::string refusal(const json& actions) {
        try {
            play(actions);
        } catch (const ScriptError& error) {
            return error.what();
        }
        return "none";
    }
};

using Events = std::vector<std::string>;

}  // namespace

TEST_CASE_FIXTURE(Script, "the transcript holds each form as it opened") {
    screen.begin_call(json::object());
    frmSample(screen).show_modal();
    const json shown = screen.end_call();
    REQUIRE(shown["forms"].size() == 1);
    const json& form = shown["forms"][0];
    CHECK(form["name"] == "frmSample");
    CHECK(form["caption"] == "Sample");
    CHECK(form["helpId"] == 170000);
    const json& controls = form["controls"];
    CHECK(controls["lblText"] == json{{"value", "Größe"}, {"enabled", true}});
    CHECK(controls["txtName"] == json{{"value", "old"}, {"enabled", true}});
    CHECK(controls["chkDeep"] == json{{"value", false}, {"enabled", true}});
    CHECK(controls["optOrder"] == json{{"value", -1}, {"enabled", true}});
    CHECK(controls["SSPanel1"] == json{{"value", 0}, {"enabled", true}});
    CHECK(controls["cmdButton(0)"] == json{{"value", "OK"}, {"enabled", true}});
    CHECK(controls["cmdButton(4)"] == json{{"value", "Help"}, {"enabled", false}});
    CHECK(controls["treRows"]["value"] == R"([
        {"key": "ROOT", "text": "All", "level": 1, "image": 1},
        {"key": "a.xls", "text": "a.xls", "level": 2, "image": 2},
        {"key": "a.xls*Über", "text": "Über", "level": 3, "image": 1, "italic": true}])"_json);
    CHECK(controls.size() == 9);
}

TEST_CASE_FIXTURE(Script, "a form without actions, and one still open after them, is cancelled") {
    CHECK(play("[]"_json) == Events{"press 1", "unload"});
    CHECK(play(R"([{"set": "txtName", "to": "new"}])"_json) == Events{"name new", "press 1", "unload"});
}

TEST_CASE_FIXTURE(Script, "a form whose Cancel does nothing is unloaded") {
    screen.begin_call("{}"_json);
    frmSample form(screen);
    form.cancel_is_deaf = true;
    form.show_modal();
    CHECK(form.events == Events{"press 1", "unload"});
}

TEST_CASE_FIXTURE(Script, "a form that is hidden by its button comes back to its command") {
    CHECK(play(R"-([{"press": "cmdButton(0)"}])-"_json) == Events{"press 0"});
}

TEST_CASE_FIXTURE(Script, "a box in a tree is checked by pointer, whatever is closed above it") {
    screen.begin_call(R"({"forms": [[{"check": "treRows", "node": "a.xls*Über"}]]})"_json);
    frmSample form(screen);
    form.show_modal();
    CHECK(form.treRows.find(u"a.xls*Über")->image() == 2);
    CHECK(form.treRows.find(u"ROOT")->expanded());
    CHECK(form.treRows.find(u"a.xls")->expanded());
}

TEST_CASE_FIXTURE(Script, "a check says the state where it matters, and a row is named by its text") {
    screen.begin_call(R"({"forms": [[{"check": "treRows", "row": "All", "to": true},
                                     {"check": "treRows", "row": "All", "to": true},
                                     {"check": "treRows", "node": "a.xls", "to": false},
                                     {"check": "treRows", "row": "Über", "to": false}]]})"_json);
    frmSample form(screen);
    form.show_modal();
    CHECK(form.treRows.find(u"ROOT")->image() == 2);
    CHECK(form.treRows.find(u"a.xls")->image() == 1);
    CHECK(form.treRows.find(u"a.xls*Über")->image() == 1);
}

TEST_CASE_FIXTURE(Script, "check boxes, options and texts are set") {
    screen.begin_call(R"({"forms": [[{"check": "chkDeep"},
                                     {"set": "optOrder", "to": 1},
                                     {"set": "txtName", "to": "Ä"},
                                     {"set": "chkDeep", "to": false},
                                     {"check": "chkDeep", "to": true}]]})"_json);
    frmSample form(screen);
    form.show_modal();
    CHECK(form.chkDeep.checked());
    CHECK(form.optOrder.chosen() == 1);
    CHECK(form.txtName.text() == u"Ä");
}

TEST_CASE_FIXTURE(Script, "a row is moved onto another or onto itself by dragging") {
    CHECK(play(R"([{"move": "treRows", "row": "Über", "onto": "All"},
                   {"move": "treRows", "row": "All", "onto": "All"}])"_json) ==
          Events{"Über onto All", "All onto All", "press 1", "unload"});
}

TEST_CASE_FIXTURE(Script, "an action that does not fit says which, and what there is") {
    const std::string shapeless =
        "an action presses, checks, sets, moves, doubles, sorts, spins, deletes in or chooses from the menu of a "
        "control "
        "named as a text";
    struct Refusal {
        std::string action;
        std::string control;
        std::string reason;
    };
    const std::vector<Refusal> refusals{
        {R"({"press":"lblText"})", "lblText: ", "this is no button"},
        {R"-({"press":"cmdButton(4)"})-", "cmdButton(4): ", "it is disabled"},
        {R"({"check":"treRows","node":"b.xls"})",
         "treRows: ", R"(there is no node "b.xls"; there is ROOT, a.xls, a.xls*Über)"},
        {R"({"check":"treRows","row":"None"})", "treRows: ", R"(there is no row "None"; there is All, a.xls, Über)"},
        {R"({"check":"treRows"})", "treRows: ", R"("row" must be given as a text)"},
        {R"({"check":"lblText"})", "lblText: ", "nothing can be checked here"},
        {R"({"check":"chkDeep","to":1})", "chkDeep: ", R"("to" must be true or false)"},
        {R"({"set":"txtName"})", "txtName: ", R"("to" must say the value)"},
        {R"({"set":"txtName","to":5})", "txtName: ", R"("to" must be given as a text)"},
        {R"({"set":"optOrder","to":2})", "optOrder: ", R"(a place must be a whole number from 0 to 1)"},
        {R"({"set":"optOrder","to":"1"})", "optOrder: ", R"(a place must be a whole number from 0 to 1)"},
        {R"({"set":"treRows","to":2})", "treRows: ", "no text is being edited"},
        {R"({"move":"txtName","onto":"b","row":"a"})", "txtName: ", "there are no rows here to move"},
        {R"-({"click":"cmdButton(0)"})-", "", shapeless},
        {"5", "", shapeless},
        {R"({"press":5})", "", shapeless},
    };
    for (const Refusal& refused : refusals) {
        CHECK(refusal(json::array({json::parse(refused.action)})) ==
              "frmSample: " + refused.control + refused.action + ": " + refused.reason);
    }
    CHECK(refusal(R"([{"press": "cmdOK"}])"_json) ==
          "frmSample has no control cmdOK; it has lblText, txtName, chkDeep, optOrder, SSPanel1, treRows, "
          "cmdButton(0), cmdButton(1), cmdButton(4)");
}

TEST_CASE_FIXTURE(Script, "a long list of what there is is cut short") {
    screen.begin_call(R"({"forms": [[{"check": "treRows", "node": "none"}]]})"_json);
    frmSample form(screen);
    for (int number = 0; number < 60; ++number) {
        const std::u16string key = from_utf8(std::to_string(number));
        form.treRows.add(nullptr, Relationship::child, key, key, 1);
    }
    try {
        form.show_modal();
        FAIL("the script should have ended");
    } catch (const ScriptError& error) {
        CHECK(std::string(error.what()).ends_with("35, 36 and 23 more"));
    }
}

TEST_CASE_FIXTURE(Script, "an action behind the one that closed the form ends the run") {
    CHECK(refusal(R"-([{"press": "cmdButton(0)"}, {"press": "cmdButton(1)"}])-"_json) ==
          R"-(frmSample closed before the action {"press":"cmdButton(1)"})-");
}

TEST_CASE_FIXTURE(Script, "what ends the run goes through statements whose failure is passed over") {
    screen.begin_call(R"({"forms": [[{"press": "cmdOK"}]]})"_json);
    frmSample form(screen);
    CHECK_THROWS_AS(attempt([&] { form.show_modal(); }), ScriptError);
}

TEST_CASE_FIXTURE(Script, "forms get their actions in the order in which they open, one from within another too") {
    screen.begin_call(R"({"forms": [[{"set": "txtName", "to": "outer"}, {"set": "txtName", "to": "back"}],
                                    [{"set": "txtName", "to": "inner"}]]})"_json);
    frmSample outer(screen);
    frmSample inner(screen);
    outer.txtName.on_change = [&] {
        outer.events.push_back(to_utf8(outer.txtName.text()));
        if (outer.txtName.text() == u"outer") inner.show_modal();
    };
    outer.show_modal();
    CHECK(outer.events == Events{"outer", "back", "press 1", "unload"});
    CHECK(inner.events == Events{"name inner", "press 1", "unload"});
    CHECK(screen.end_call()["forms"].size() == 2);
}

TEST_CASE_FIXTURE(Script, "help is asked of a message that has some, before it is answered") {
    int opened = 0;
    const MessageBox message{
        .title = {}, .text = u"Sure?", .buttons = MessageButtons::yes_no, .open_help = [&] { ++opened; }};
    screen.begin_call(R"({"answers": ["Help", "Help", "No", "Yes", "Help"]})"_json);
    CHECK(screen.message_box(message) == MessageAnswer::no);
    CHECK(opened == 2);
    CHECK(screen.message_box(message) == MessageAnswer::yes);
    CHECK(screen.message_box(message) == MessageAnswer::yes);  // none left: its default
    CHECK(opened == 3);
    CHECK(screen.end_call()["messages"].size() == 3);
    screen.begin_call(R"({"answers": ["Help"]})"_json);
    CHECK_THROWS_WITH_AS(screen.message_box({.title = {}, .text = u"Sure?"}),
                         R"(the message "Sure?" offers ["OK"], but the script answers "Help")", ScriptError);
}

TEST_CASE_FIXTURE(Script, "more forms or answers than the call asked for are an error, unless it failed") {
    const json call = R"({"forms": [[], []], "answers": ["OK"]})"_json;
    screen.begin_call(call);
    frmSample(screen).show_modal();
    CHECK_THROWS_WITH_AS(screen.end_call(), "the call showed 1 form, the script has actions for 2", ScriptError);
    screen.begin_call(call);
    CHECK(screen.end_call(true)["forms"].empty());
    screen.begin_call(R"({"answers": ["OK", "OK"]})"_json);
    screen.message_box({.title = {}, .text = u"Sure?"});
    CHECK_THROWS_WITH_AS(screen.end_call(), "the call showed 1 message, the script has answers for 2", ScriptError);
    screen.begin_call(R"({"answers": ["OK"]})"_json);
    CHECK_THROWS_WITH_AS(screen.end_call(), "the call showed 0 messages, the script has answers for 1", ScriptError);
}

TEST_CASE_FIXTURE(Script, "a call whose forms or answers have another shape is refused") {
    CHECK_THROWS_WITH_AS(screen.begin_call(R"({"forms": "none"})"_json),
                         R"("forms" must be a list of lists of actions, but it is "none")", ScriptError);
    CHECK_THROWS_WITH_AS(screen.begin_call(R"({"forms": [{"press": "cmdOK"}]})"_json),
                         R"("forms" must be a list of lists of actions, but it is [{"press":"cmdOK"}])", ScriptError);
    CHECK_THROWS_WITH_AS(screen.begin_call(R"({"answers": [1]})"_json),
                         R"("answers" must be a list of texts, but it is [1])", ScriptError);
}

TEST_CASE_FIXTURE(Script, "messages are answered from the script, then by their default, and recorded") {
    screen.begin_call(R"({"answers": ["No"]})"_json);
    const MessageBox message{.title = u"QOR Plus",
                             .text = u"Sure?",
                             .icon = MessageIcon::question,
                             .buttons = MessageButtons::yes_no_cancel,
                             .default_button = 2};
    CHECK(screen.message_box(message) == MessageAnswer::no);
    CHECK(screen.message_box(message) == MessageAnswer::cancel);
    CHECK(screen.message_box({.title = u"QOR Plus", .text = u"Done.", .icon = MessageIcon::information}) ==
          MessageAnswer::ok);
    CHECK(screen.end_call()["messages"] == R"([
        {"title": "QOR Plus", "text": "Sure?", "icon": "question", "buttons": ["Yes", "No", "Cancel"], "answer": "No"},
        {"title": "QOR Plus", "text": "Sure?", "icon": "question", "buttons": ["Yes", "No", "Cancel"],
         "answer": "Cancel"},
        {"title": "QOR Plus", "text": "Done.", "icon": "information", "buttons": ["OK"], "answer": "OK"}])"_json);
}

TEST_CASE_FIXTURE(Script, "every kind of message offers its buttons from the left, and each gives its answer") {
    const std::vector<std::pair<MessageButtons, std::vector<std::pair<std::string, MessageAnswer>>>> kinds{
        {MessageButtons::ok, {{"OK", MessageAnswer::ok}}},
        {MessageButtons::ok_cancel, {{"OK", MessageAnswer::ok}, {"Cancel", MessageAnswer::cancel}}},
        {MessageButtons::abort_retry_ignore,
         {{"Abort", MessageAnswer::abort}, {"Retry", MessageAnswer::retry}, {"Ignore", MessageAnswer::ignore}}},
        {MessageButtons::yes_no_cancel,
         {{"Yes", MessageAnswer::yes}, {"No", MessageAnswer::no}, {"Cancel", MessageAnswer::cancel}}},
        {MessageButtons::yes_no, {{"Yes", MessageAnswer::yes}, {"No", MessageAnswer::no}}},
        {MessageButtons::retry_cancel, {{"Retry", MessageAnswer::retry}, {"Cancel", MessageAnswer::cancel}}}};
    for (const auto& [buttons, offered] : kinds) {
        MessageBox message{.title = {}, .text = {}, .buttons = buttons};
        for (const auto& [text, answer] : offered) {
            screen.begin_call({{"answers", json::array({text})}});
            CHECK(screen.message_box(message) == answer);
            screen.begin_call(json::object());
            CHECK(screen.message_box(message) == answer);
            ++message.default_button;
        }
    }
}

TEST_CASE_FIXTURE(Script, "an answer that the message does not offer ends the run") {
    screen.begin_call(R"({"answers": ["Yes"]})"_json);
    CHECK_THROWS_WITH_AS(screen.message_box({.title = {}, .text = u"Done.", .buttons = MessageButtons::ok_cancel}),
                         R"(the message "Done." offers ["OK","Cancel"], but the script answers "Yes")", ScriptError);
}

TEST_CASE_FIXTURE(Script, "ranges and files that nobody asked for end the run") {
    screen.begin_call(R"({"ranges": ["B2:B9"]})"_json);
    CHECK_THROWS_WITH_AS(screen.end_call(), "the call asked for no more ranges, the script has 1", ScriptError);
    screen.begin_call(R"({"files": ["out.xls", "in.xls"]})"_json);
    CHECK_THROWS_WITH_AS(screen.end_call(), "the call asked for no more files, the script has 2", ScriptError);
    screen.begin_call(R"({"files": ["out.xls"]})"_json);
    CHECK_NOTHROW(screen.end_call(true));
    CHECK_THROWS_AS(screen.begin_call(R"({"ranges": "B2"})"_json), ScriptError);
}

TEST_CASE_FIXTURE(Script, "progress is told as it stood last, and each call starts anew") {
    frmSample form(screen);
    screen.begin_call(json::object());
    form.show(nullptr);
    screen.progress(form, 1, 8);
    screen.progress(form, 1, 1);
    CHECK(screen.end_call() == R"({"forms": [], "messages": [], "progress": [1, 1]})"_json);
    screen.begin_call(json::object());
    CHECK(screen.end_call() == R"({"forms": [], "messages": [], "progress": null})"_json);
}
