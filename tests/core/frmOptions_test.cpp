#include "core/frmOptions.hpp"

#include <doctest/doctest.h>

#include <cstring>
#include <nlohmann/json.hpp>

#include "platform/text.hpp"
#include "screens/script/script_screen.hpp"
#include "tests/fakes/command_host.hpp"

using namespace qor;
using namespace nlohmann::literals;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;
using nlohmann::json;

namespace {

const MemberName QCurrentTab(u"QCurrentTab"), QHelpFile(u"QHelpFile"), QDoSelectionChange(u"QDoSelectionChange");

// The Options dialog over a host with nothing open.
struct Dialog : fakes::CommandHostWith<ScriptScreen> {
    std::int32_t help_id = 0;  // of the last call for help

    Dialog() {
        application.answers(names::Help, [this](Access, Values arguments) -> Variant {
            CHECK(text_of(arguments[0]) == u"help.chm");
            help_id = *arguments[1].get_if<std::int32_t>();
            done.emplace_back(u"Help");
            return {};
        });
        application.answers(names::ScreenUpdating, [this](Access, Values value) -> Variant {
            done.emplace_back(*value[0].get_if<bool>() ? u"draws" : u"holds");
            return {};
        });
        application.holds(names::ActiveWorkbook, Object());
        application.holds(names::Workbooks,
                          make(u"Workbooks", [this](FakeObject& books) { books.answers(names::Add, writes(u"Add")); }));
        com.put(QHelpFile, u"help.chm");
    }

    // The dialog as it opened.
    json play(const json& actions, const json& more = json::object()) {
        json script = more;
        script["forms"] = json::array({actions});
        screen.begin_call(script);
        call(u"UTOpt");
        return screen.end_call()["forms"][0];
    }
};

json value(const json& form, const char* control) {
    return form["controls"][control]["value"];
}
bool enabled(const json& form, const char* control) {
    return form["controls"][control]["enabled"].get<bool>();
}

}  // namespace

TEST_CASE_FIXTURE(Dialog, "the dialog opens on a fresh profile with its own defaults and nothing to apply") {
    const json form = play(json::array());
    CHECK(form["name"] == "frmOptions");
    CHECK(form["caption"] == "QOR Plus: Options");
    CHECK(form["helpId"] == 170125);
    CHECK(value(form, "tabOptions") == 0);
    for (const char* box : {"chkT1AutoAdjWin",
                            "chkT1AutoAdjWinWorkbookOnly",
                            "chkT1AddFullFilePath",
                            "chkT1DeleteRecentFiles",
                            "chkT2AlternateTemplate",
                            "chkT2DefaultSave",
                            "chkT2AlwaysCreateBackupUponSave",
                            "chkT3SaveWorkbooksEvery",
                            "chkT3AutoDeleteEmptyWorksheets",
                            "chkT3AutoSaveB4Close",
                            "chkT3ShowHiddenWorkbooks",
                            "chkT4ShowHiddenWorksheets",
                            "chkT4UseCellEvents",
                            "chkT4SetScrollArea",
                            "chkT4ViewCellCommentsUponEntry",
                            "chkT5ReportNewWorkbook",
                            "chkT6InsSinRow",
                            "chkT6InsSinRowARH",
                            "chkT6InsSinCol",
                            "chkT6InsSinColACW"}) {
        CAPTURE(box);
        CHECK(value(form, box) == false);
    }
    CHECK(value(form, "chkT2WarnBackupExists") == true);
    CHECK(value(form, "chkT4ResetLastCellUponSave") == true);
    CHECK(value(form, "rdoT1AutoAdjWin") == -1);
    CHECK(value(form, "rdoT5ReportLocation") == -1);
    CHECK(value(form, "txtT3SaveWorkbooksEvery") == "10");
    CHECK(value(form, "txtT4CellEventMinutes") == "1");
    CHECK(value(form, "txtT6InsRow") == "1");
    CHECK(value(form, "txtT6InsCol") == "1");
    CHECK(value(form, "txtT6InsSinRow") == "");
    CHECK(value(form, "txtT6InsSinCol") == "");
    CHECK(value(form, "txtT2DefaultSaveFolder") == "");
    CHECK(value(form, "cmdT6InsSinRow(0)")["backColor"] == 0);
    CHECK(value(form, "cmdT6InsSinRow(1)")["foreColor"] == 0);
    CHECK(value(form, "fraOptions(3)") == "Worksheet");
    CHECK_FALSE(enabled(form, "cmdButton(0)"));
    CHECK(enabled(form, "cmdButton(1)"));
    CHECK_FALSE(enabled(form, "cmdButton(2)"));
    CHECK(enabled(form, "cmdButton(3)"));
    CHECK(settings.values.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Dialog, "stored options are shown, whichever way they are written") {
    settings.set_option(u"chkT1AutoAdjWin", u"True");
    settings.set_option(u"rdoT1AutoAdjWin2", u"-1");
    settings.set_option(u"chkT3ShowHiddenWorkbooks", u"7");
    settings.set_option(u"txtT4CellEventMinutes", u"90");
    settings.set_option(u"txtT2DefaultSaveFolder", u"C:\\Books");
    settings.set_option(u"T6BInsSinCol", u"255");
    settings.set_option(u"T6FInsSinCol", u"65280");
    settings.set_option(u"chkT4UseCellEvents", u"perhaps");
    settings.set_option(u"T6BInsSinRow", u"blue");
    settings.set_option(u"rdoT5ReportLocation0", u"");
    const json form = play(json::array());
    CHECK(value(form, "chkT1AutoAdjWin") == true);
    CHECK(value(form, "rdoT1AutoAdjWin") == 2);
    CHECK(value(form, "chkT3ShowHiddenWorkbooks") == true);
    CHECK(value(form, "txtT4CellEventMinutes") == "60");
    CHECK(value(form, "txtT2DefaultSaveFolder") == "C:\\Books");
    CHECK(value(form, "cmdT6InsSinCol(0)")["backColor"] == 255);
    CHECK(value(form, "cmdT6InsSinCol(1)")["foreColor"] == 65280);
    CHECK(value(form, "chkT4UseCellEvents") == false);
    CHECK(value(form, "rdoT5ReportLocation") == -1);
    CHECK_FALSE(enabled(form, "cmdButton(2)"));
}

TEST_CASE_FIXTURE(Dialog, "what depends on a box is enabled with it") {
    struct Rule {
        const char* master;
        std::vector<const char*> dependants;
    };
    const std::vector<Rule> rules{
        {"chkT1AutoAdjWin", {"rdoT1AutoAdjWin", "chkT1AutoAdjWinWorkbookOnly"}},
        {"chkT2AlternateTemplate", {"txtT2AlternateTemplateFile"}},
        {"chkT2DefaultSave", {"txtT2DefaultSaveFolder"}},
        {"chkT2AlwaysCreateBackupUponSave", {"txtT2AlwaysCreateBackupUponSave", "chkT2WarnBackupExists"}},
        {"chkT3SaveWorkbooksEvery", {"txtT3SaveWorkbooksEvery"}},
        {"chkT4UseCellEvents", {"txtT4CellEventMinutes"}},
        {"chkT6InsSinColACW", {"txtT6InsSinCol"}},
        {"chkT6InsSinRowARH", {"txtT6InsSinRow"}},
    };
    json form = play(json::array());
    for (const Rule& rule : rules) {
        for (const char* dependant : rule.dependants) CHECK_FALSE(enabled(form, dependant));
        settings.set_option(std::u16string(rule.master, rule.master + std::strlen(rule.master)), u"-1");
    }
    CHECK(enabled(form, "rdoT5ReportLocation"));
    settings.set_option(u"chkT5ReportNewWorkbook", u"-1");
    form = play(json::array());
    for (const Rule& rule : rules) {
        for (const char* dependant : rule.dependants) CHECK(enabled(form, dependant));
    }
    CHECK_FALSE(enabled(form, "rdoT5ReportLocation"));
}

TEST_CASE_FIXTURE(Dialog, "a click on a box enables at once what depends on it") {
    frmOptions form;
    form.load();
    form.chkT1AutoAdjWin.set_checked(true);
    CHECK(form.rdoT1AutoAdjWin.enabled());
    form.chkT1AutoAdjWin.set_checked(false);
    CHECK_FALSE(form.chkT1AutoAdjWinWorkbookOnly.enabled());
    form.chkT5ReportNewWorkbook.set_checked(true);
    CHECK_FALSE(form.rdoT5ReportLocation.enabled());
}

TEST_CASE_FIXTURE(Dialog, "any change lets OK and Apply be pressed") {
    frmOptions form;
    form.load();
    CHECK_FALSE(form.IsDirty());
    form.txtT3SaveWorkbooksEvery.box.set_text(u"20");
    CHECK(form.IsDirty());
    CHECK(form.cmdButton(0).enabled());
    CHECK(form.cmdButton(2).enabled());
    form.IsDirty(false);
    CHECK_FALSE(form.cmdButton(0).enabled());
}

TEST_CASE_FIXTURE(Dialog, "a dialog that is unloaded has neither caption nor help") {
    frmOptions form;
    form.AppTitle = u"QOR Plus: Options";
    form.HelpFile = u"help.chm";
    form.load();
    CHECK(form.caption() == u"QOR Plus: Options");
    form.cmdButton(1).press();
    CHECK(form.AppTitle.empty());
    CHECK(form.HelpFile.empty());
}

TEST_CASE_FIXTURE(Dialog, "Cancel and closing the window store nothing") {
    play(R"j([{"check": "chkT1AutoAdjWin"}, {"press": "cmdButton(1)"}])j"_json);
    play(R"j([{"check": "chkT1AutoAdjWin"}])j"_json);
    CHECK(settings.values.empty());
}

TEST_CASE_FIXTURE(Dialog, "OK stores what was touched, each kind in its own form, and nothing else") {
    play(R"j([{"check": "chkT1AutoAdjWin"}, {"set": "rdoT1AutoAdjWin", "to": 3},
             {"check": "chkT4ResetLastCellUponSave"},
             {"check": "chkT3SaveWorkbooksEvery"}, {"set": "txtT3SaveWorkbooksEvery", "to": "75"},
             {"spin": "txtT6InsCol", "by": 2},
             {"press": "cmdT6InsSinRow(0)"}, {"press": "cmdT6InsSinRow(1)"}, {"press": "cmdT6InsSinCol(1)"},
             {"press": "cmdButton(0)"}])j"_json,
         R"j({"colors": [255, 65280, null]})j"_json);
    CHECK(settings.values == decltype(settings.values){
                                 {{u"Options", u"chkT1AutoAdjWin"}, u"-1"},
                                 {{u"Options", u"rdoT1AutoAdjWin0"}, u"False"},
                                 {{u"Options", u"rdoT1AutoAdjWin1"}, u"False"},
                                 {{u"Options", u"rdoT1AutoAdjWin2"}, u"False"},
                                 {{u"Options", u"rdoT1AutoAdjWin3"}, u"True"},
                                 {{u"Options", u"chkT4ResetLastCellUponSave"}, u"0"},
                                 {{u"Options", u"chkT3SaveWorkbooksEvery"}, u"-1"},
                                 {{u"Options", u"txtT3SaveWorkbooksEvery"}, u"60"},
                                 {{u"Options", u"txtT6InsCol"}, u"3"},
                                 {{u"Options", u"T6BInsSinRow"}, u"255"},
                                 {{u"Options", u"T6FInsSinRow"}, u"65280"},
                             });
}

TEST_CASE_FIXTURE(Dialog, "the place of reports is stored under both keys") {
    play(R"j([{"set": "rdoT5ReportLocation", "to": 1}, {"press": "cmdButton(0)"}])j"_json);
    CHECK(settings.option(u"rdoT5ReportLocation0") == u"False");
    CHECK(settings.option(u"rdoT5ReportLocation1") == u"True");
}

TEST_CASE_FIXTURE(Dialog, "Apply leaves the dialog open, and a later one stores the same options again") {
    frmOptions form;
    form.load();
    form.chkT4SetScrollArea.set_checked(true);
    form.cmdButton(2).press();
    CHECK(form.loaded());
    CHECK_FALSE(form.cmdButton(0).enabled());
    CHECK_FALSE(form.cmdButton(2).enabled());
    CHECK(settings.option(u"chkT4SetScrollArea") == u"-1");
    settings.values.clear();
    form.chkT4UseCellEvents.set_checked(true);
    form.cmdButton(0).press();
    CHECK_FALSE(form.loaded());
    CHECK(settings.option(u"chkT4SetScrollArea") == u"-1");
    CHECK(settings.option(u"chkT4UseCellEvents") == u"-1");
}

TEST_CASE_FIXTURE(Dialog, "an option without its path is switched off, and stored so only if it was touched") {
    settings.set_option(u"chkT2DefaultSave", u"-1");
    settings.set_option(u"txtT2DefaultSaveFolder", u"  ");
    frmOptions form;
    form.load();
    form.chkT2AlternateTemplate.set_checked(true);
    form.chkT2AlwaysCreateBackupUponSave.set_checked(true);
    form.txtT2AlwaysCreateBackupUponSave.box.set_text(u"/backups");
    form.cmdButton(2).press();
    CHECK_FALSE(form.chkT2DefaultSave.checked());
    CHECK_FALSE(form.txtT2DefaultSaveFolder.box.enabled());
    CHECK_FALSE(form.chkT2AlternateTemplate.checked());
    CHECK(form.chkT2AlwaysCreateBackupUponSave.checked());
    CHECK(settings.option(u"chkT2DefaultSave") == u"-1");
    CHECK(settings.option(u"chkT2AlternateTemplate") == u"0");
    CHECK(settings.option(u"chkT2AlwaysCreateBackupUponSave") == u"-1");
    CHECK(settings.option(u"txtT2AlwaysCreateBackupUponSave") == u"/backups");
    CHECK_FALSE(form.cmdButton(0).enabled());
}

TEST_CASE_FIXTURE(Dialog, "only the frame of the tab in front can be reached") {
    com.put(QCurrentTab, 3);
    const json form = play(json::array());
    CHECK(value(form, "tabOptions") == 3);
    CHECK(enabled(form, "fraOptions(3)"));
    CHECK_FALSE(enabled(form, "fraOptions(0)"));
    CHECK_FALSE(enabled(form, "fraOptions(5)"));
    frmOptions other;
    other.GetCurrentTab = 9;
    other.load();
    CHECK(other.tabOptions.current() == 0);
    CHECK(other.fraOptions[0].enabled());
    other.tabOptions.turn_to(5);
    CHECK_FALSE(other.fraOptions[0].enabled());
    CHECK(other.fraOptions[5].enabled());
}

TEST_CASE_FIXTURE(Dialog, "captions are brought up to date as soon as their option is applied") {
    play(R"j([{"check": "chkT4UseCellEvents"}, {"press": "cmdButton(2)"}])j"_json);
    CHECK(done.empty());
    play(R"j([{"check": "chkT1AddFullFilePath"}, {"press": "cmdButton(2)"
    }])j"_json);
    // There is no workbook, so nothing more comes of it, and the host draws again.
    CHECK(done == Lines{u"holds", u"draws"});
}

TEST_CASE_FIXTURE(Dialog, "Help opens the host's help, and its refusal is passed over") {
    play(R"j([{"press": "cmdButton(3)"}])j"_json);
    CHECK(done == Lines{u"Help"});
    CHECK(help_id == 170125);
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Help"; };
    CHECK_NOTHROW(play(R"j([{"press": "cmdButton(3)"
    }])j"_json));
}

TEST_CASE_FIXTURE(Dialog, "whether comments show follows the dialog, not the store behind its back") {
    play(R"j([{"check": "chkT4ViewCellCommentsUponEntry"}, {"press": "cmdButton(0)"}])j"_json);
    CHECK(*com.get(QDoSelectionChange).get_if<bool>());
    settings.set_option(u"chkT4ViewCellCommentsUponEntry", u"0");
    CHECK(*com.get(QDoSelectionChange).get_if<bool>());
    play(json::array());
    CHECK_FALSE(*com.get(QDoSelectionChange).get_if<bool>());
}

TEST_CASE_FIXTURE(Dialog, "without an alternate template the options are offered on their second tab") {
    com.put(QCurrentTab, 3);
    screen.begin_call(R"j({"forms": [[{"check": "chkT4ViewCellCommentsUponEntry"}, {"press": "cmdButton(0)"
}]]
})j"_json);
    call(u"UTAltTem");
    const json shown = screen.end_call();
    REQUIRE(shown["messages"].size() == 1);
    CHECK(shown["messages"][0]["title"] == "QOR Plus");
    CHECK(shown["messages"][0]["text"] ==
          "The alternate template is not enabled.  You may enable this function in the options dialog box.");
    CHECK(shown["messages"][0]["icon"] == "information");
    CHECK(shown["messages"][0]["helpId"] == 170010);
    REQUIRE(shown["forms"].size() == 1);
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Options");
    CHECK(shown["forms"][0]["helpId"] == 170125);
    CHECK(value(shown["forms"][0], "tabOptions") == 1);
    CHECK(*com.get(QDoSelectionChange).get_if<bool>());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Dialog, "the message on the missing template has a help, whose refusal is passed over") {
    const json script = R"j({"answers": ["Help", "OK"]})j"_json;
    screen.begin_call(script);
    call(u"UTAltTem");
    CHECK(screen.end_call()["forms"].size() == 1);
    CHECK(done == Lines{u"Help"});
    CHECK(help_id == 170010);
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Help"; };
    screen.begin_call(script);
    call(u"UTAltTem");
    CHECK(screen.end_call()["forms"].size() == 1);
}

TEST_CASE_FIXTURE(Dialog, "an alternate template makes a new workbook; without its name nothing happens") {
    settings.set_option(u"chkT2AlternateTemplate", u"-1");
    screen.begin_call(json::object());
    call(u"UTAltTem");
    CHECK(done.empty());
    settings.set_option(u"txtT2AlternateTemplateFile", u"/templates/plan.xlt");
    call(u"UTAltTem");
    CHECK(done == Lines{u"Add /templates/plan.xlt"});
    CHECK(screen.end_call()["messages"].empty());
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Add"; };
    CHECK(attempt([&] { call(u"UTAltTem"); }) == 1004);
}

TEST_CASE_FIXTURE(Dialog, "texts of any length and script are stored as they are") {
    const std::string text = std::string(100000, 'x') + "\xE2\x82\xAC\xF0\x9F\x98\x80";
    json actions = json::array();
    for (const auto* box : {"chkT2AlternateTemplate", "chkT2DefaultSave", "chkT2AlwaysCreateBackupUponSave"})
        actions.push_back({{"check", box}});
    const std::vector<const char*> texts{"txtT2AlternateTemplateFile", "txtT2DefaultSaveFolder",
                                         "txtT2AlwaysCreateBackupUponSave"};
    for (const auto* box : texts) actions.push_back({{"set", box}, {"to", text}});
    actions.push_back({{"set", "txtT6InsRow"}, {"to", text}});
    actions.push_back({{"press", "cmdButton(0)"}});
    play(actions);
    for (const auto* box : texts)
        CHECK(settings.option(from_utf8(box)) == std::u16string(100000, u'x') + u"\u20AC\U0001F600");
    CHECK(settings.option(u"txtT6InsRow") == std::u16string(100000, u'x') + u"\u20AC\U0001F600");
}
