#include <doctest/doctest.h>

#include <nlohmann/json.hpp>

#include "screens/script/script_screen.hpp"
#include "ui/button.hpp"
#include "ui/combo_box.hpp"
#include "ui/date_picker.hpp"
#include "ui/form.hpp"
#include "ui/frame.hpp"
#include "ui/list_box.hpp"
#include "ui/pick_box.hpp"
#include "ui/spin_box.hpp"
#include "ui/swatch.hpp"
#include "ui/tabs.hpp"
#include "ui/text_box.hpp"

using namespace qor;
using namespace nlohmann::literals;
using nlohmann::json;

namespace {

class frmPicking final : public Form {
  public:
    explicit frmPicking(Screen& screen) : Form(u"frmPicking", screen) {
        lstMain.add_row({u"Rent", u"A1"});
        lstMain.add_row({u"Tax", u"B2"});
        txtFolder.on_pick = [this] {
            if (auto folder = this->screen().pick_folder(this, u"Browse for folder")) txtFolder.set_text(*folder);
        };
        txtFolder.on_enter = [this] { log += u"enter "; };
        txtFolder.on_leave = [this] { log += u"leave "; };
        cmdColor.on_click = [this] {
            if (const auto color = this->screen().pick_color(this)) cmdColor.set_back_color(*color);
        };
        lstMain.on_click = [this](std::size_t row) { log += u"click " + lstMain.text(row, 0) + u' '; };
        lstMain.on_double_click = [this](std::size_t row) { log += u"double " + lstMain.text(row, 0) + u' '; };
    }
    std::u16string_view caption() const noexcept override { return u"Picking"; }

    PickBox txtFolder{*this, u"txtFolder", u"FOLDER"};
    SpinBox txtMinutes{*this, u"txtMinutes", u"10", 1, 60};
    ComboBox cboPlace{*this, u"cboPlace", {u"Right", u"Left"}, 0};
    Tabs tabOptions{*this, u"tabOptions", {u"General", u"Reports"}};
    Frame fraOptions{*this, u"fraOptions", u"General"};
    ListBox lstMain{*this, u"lstMain", {{u"Name"}, {u"Range", false}}, ListBox::Selecting::several_rows};
    Swatch cmdColor{*this, u"cmdColor", u"BG"};
    DatePicker txtDate{*this, u"txtDate", Date{46347}};
    TextBox txtLocked{*this, u"txtLocked", u"fixed"};

    std::u16string log;
};

struct Fixture {
    ScriptScreen screen;
    frmPicking form{screen};

    void play(const json& call) {
        screen.begin_call(call);
        form.show_modal();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a script picks, types, spins, chooses and turns") {
    play(R"({"forms": [[{"press": "txtFolder"}, {"set": "txtMinutes", "to": "60"}, {"spin": "txtMinutes", "by": -2},
                        {"set": "cboPlace", "to": 1}, {"set": "tabOptions", "to": 1}, {"press": "cmdColor"},
                        {"set": "txtDate", "to": "2026-11-21"}]],
             "folders": ["/tmp"], "colors": [255]
})"_json);
    CHECK((form.txtFolder.text() == u"/tmp"));
    CHECK((form.txtMinutes.text() == u"58"));
    CHECK(form.cboPlace.chosen() == 1);
    CHECK(form.tabOptions.current() == 1);
    CHECK(form.cmdColor.back_color() == 255);
    CHECK(form.txtDate.day().serial == 46347);
    CHECK_NOTHROW(screen.end_call());
}

TEST_CASE_FIXTURE(Fixture, "a dialog for which nothing is left, or null, is cancelled") {
    play(R"({"forms": [[{"press": "txtFolder"}, {"press": "txtFolder"}, {"press": "cmdColor"}]],
             "folders": [null]
})"_json);
    CHECK((form.txtFolder.text() == u""));
    CHECK(form.cmdColor.back_color() == 0xFFFFFF);
    CHECK_FALSE(screen.pick_range().has_value());
    FileDialog dialog;
    CHECK_FALSE(screen.pick_file(nullptr, dialog).has_value());
    CHECK_NOTHROW(screen.end_call());
}

TEST_CASE_FIXTURE(Fixture, "ranges and files are picked in their order") {
    screen.begin_call(R"({"ranges": ["B2:B9", "C3"], "files": ["out.xls"]})"_json);
    CHECK((screen.pick_range() == u"B2:B9"));
    CHECK((screen.pick_range() == u"C3"));
    FileDialog dialog;
    CHECK((screen.pick_file(nullptr, dialog) == u"out.xls"));
    CHECK_NOTHROW(screen.end_call());
}

TEST_CASE_FIXTURE(Fixture, "typing enters a box and leaves it") {
    play(R"({"forms": [[{"set": "txtFolder", "to": "/nowhere"}]]})"_json);
    CHECK((form.log == u"enter leave "));
}

TEST_CASE_FIXTURE(Fixture, "a script selects, double-clicks and sorts rows") {
    play(R"({"forms": [[{"set": "lstMain", "to": [0, 1]}, {"double": "lstMain", "row": 0},
                        {"sort": "lstMain", "column": 0}, {"sort": "lstMain", "column": 0},
                        {"set": "lstMain", "to": 0}]]})"_json);
    CHECK((form.log == u"click Tax double Rent click Tax "));
    CHECK((form.lstMain.selection() == std::set<std::size_t>{0}));
}

TEST_CASE_FIXTURE(Fixture, "the controls are described as they opened") {
    play(R"({})"_json);
    const json described = screen.end_call()["forms"][0]["controls"];
    CHECK(described["txtFolder"] == R"({"enabled": true, "value": ""})"_json);
    CHECK(described["txtMinutes"]["value"] == "10");
    CHECK(described["cboPlace"]["value"] == 0);
    CHECK(described["tabOptions"]["value"] == 0);
    CHECK(described["fraOptions"]["value"] == "General");
    CHECK(described["lstMain"]["value"] == R"({"rows": [["Rent", "A1"], ["Tax", "B2"]], "selected": []})"_json);
    CHECK(described["cmdColor"]["value"] == R"({"backColor": 16777215, "foreColor": 0})"_json);
    CHECK(described["txtDate"]["value"] == "2026-11-21");
}

TEST_CASE_FIXTURE(Fixture, "what does not fit a control ends the run") {
    form.txtLocked.set_locked(true);
    for (const auto& action : {
             R"({"set": "cboPlace", "to": 2})"_json,
             R"({"set": "tabOptions", "to": "Reports"})"_json,
             R"({"set": "lstMain", "to": [0, 7]})"_json,
             R"({"double": "lstMain"})"_json,
             R"({"double": "cboPlace", "row": 0})"_json,
             R"({"sort": "lstMain", "column": 2})"_json,
             R"({"spin": "txtFolder", "by": 1})"_json,
             R"({"spin": "txtMinutes", "by": "up"})"_json,
             R"({"set": "txtDate", "to": "someday"})"_json,
             R"({"set": "txtLocked", "to": "other"})"_json,
             R"({"press": "cboPlace"})"_json,
         }) {
        CAPTURE(action.dump());
        CHECK_THROWS_AS(play({{"forms", json::array({json::array({action})})}}), ScriptError);
        form.unload();
    }
    CHECK_THROWS_AS(screen.begin_call(R"({"colors": ["red"]})"_json), ScriptError);
}
