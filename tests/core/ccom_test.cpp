#include "core/CCom.hpp"

#include <doctest/doctest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>

#include "automation/member_names.hpp"
#include "core/tool_table.hpp"
#include "functions/registry.hpp"
#include "ground/MMain.hpp"
#include "platform/text.hpp"
#include "screens/script/script_screen.hpp"
#include "tests/fakes/memory_settings.hpp"

using namespace qor;

namespace {

// An Application of which a test says what each access does.
class ScriptedApplication final : public Dispatch {
  public:
    std::function<Variant(const MemberName&, Arguments)> answer = [](const MemberName&, Arguments) -> Variant {
        throw Error(ErrorNumber::no_such_member);
    };
    std::vector<std::u16string> accesses;

    Variant invoke(const MemberName& name, Access, Arguments arguments) override {
        accesses.emplace_back(name.text());
        return answer(name, arguments);
    }
    std::u16string_view type_name() const noexcept override { return u"Application"; }
};

struct Installation {
    ScriptScreen screen;
    fakes::MemorySettings settings;

    Installation() { set_environment({screen, settings}); }

    ScriptedApplication* application = new ScriptedApplication;
    Object application_object{application};
};

const MemberName UTWorSum(u"UTWorSum"), QTitle(u"QTitle"), QCompany(u"QCompany"), QMajor(u"QMajor"), QMinor(u"QMinor"),
    QCurrentTab(u"QCurrentTab"), QDoSelectionChange(u"QDoSelectionChange"), QGetSetting(u"QGetSetting"),
    QSaveSetting(u"QSaveSetting"), QOpenHelp(u"QOpenHelp"), QHelpFile(u"QHelpFile"), QSetupFunc(u"QSetupFunc"),
    QSetCurrDir(u"QSetCurrDir"), ARNS(u"ARNS");

std::u16string text_of(const Variant& value) {
    REQUIRE(value.get_if<std::u16string>());
    return *value.get_if<std::u16string>();
}

}  // namespace

TEST_CASE("the add-in tells its title, company and version, and nobody can write them") {
    Installation installation;
    const Object com = make_object<CCom>();
    CHECK(text_of(com.get(QTitle)) == u"QOR Plus");
    CHECK(text_of(com.get(QCompany)) == u"Ombrel");
    CHECK(*com.get(QMajor).get_if<std::int32_t>() == 2);
    CHECK(*com.get(QMinor).get_if<std::int32_t>() == 6);
    CHECK(attempt([&] { com.put(QTitle, u"Other"); }) == 438);
}

TEST_CASE("plain properties start empty and keep what is written") {
    Installation installation;
    const Object com = make_object<CCom>();
    for (const auto* name : {u"QExcelVer", u"QHelpFile", u"QThisWrkBkPath", u"QWorksheetName", u"QTargetAddress"}) {
        const MemberName property(name);
        CHECK(text_of(com.get(property)).empty());
        com.put(property, u"C:\\Tools");
        CHECK(text_of(com.get(property)) == u"C:\\Tools");
    }
    for (const auto* name : {u"QCurrentTab", u"QHelpFileId"}) {
        const MemberName property(name);
        CHECK(*com.get(property).get_if<std::int32_t>() == 0);
        com.put(property, u"3");
        CHECK(*com.get(property).get_if<std::int32_t>() == 3);
    }
}

TEST_CASE("a value that does not convert leaves a plain property as it was, without an error") {
    Installation installation;
    const Object com = make_object<CCom>();
    com.put(QCurrentTab, 2);
    CHECK(attempt([&] { com.put(QCurrentTab, u"second"); }) == 0);
    CHECK(*com.get(QCurrentTab).get_if<std::int32_t>() == 2);
}

TEST_CASE("whether comments show upon entry is read from the settings at creation") {
    Installation installation;
    const auto at_creation = [] { return *make_object<CCom>().get(QDoSelectionChange).get_if<bool>(); };
    CHECK_FALSE(at_creation());
    const fakes::MemorySettings::Key option(u"Options", u"chkT4ViewCellCommentsUponEntry");
    installation.settings.values[option] = u"-1";
    CHECK(at_creation());
    installation.settings.values[option] = u"0";
    CHECK_FALSE(at_creation());
    installation.settings.values[option] = u"perhaps";
    CHECK_FALSE(at_creation());
}

TEST_CASE("the companion reaches the settings through the add-in") {
    Installation installation;
    const Object com = make_object<CCom>();
    CHECK(text_of(com.call(QGetSetting, u"Options", u"txtT2", u"none")) == u"none");
    CHECK(*com.call(QSaveSetting, u"Options", u"txtT2", u"").get_if<bool>());
    CHECK(text_of(com.call(QGetSetting, u"Options", u"txtT2", u"none")).empty());
    com.call(QSaveSetting, u"Options", u"*", u"unnamed");
    CHECK(installation.settings.values.at({u"Options", u""}) == u"unnamed");
}

TEST_CASE("a tool without an active workbook says so and makes no form") {
    Installation installation;
    installation.application->answer = [](const MemberName&, Arguments) { return Variant(Object()); };
    const Object com = make_object<CCom>();
    installation.screen.begin_call(nlohmann::json::object());
    com.call(UTWorSum, installation.application_object);
    const nlohmann::json shown = installation.screen.end_call();
    CHECK(shown["forms"].empty());
    REQUIRE(shown["messages"].size() == 1);
    CHECK(shown["messages"][0]["title"] == "QOR Plus");
    CHECK(shown["messages"][0]["text"] == "Sorry, but you must have an active workbook to perform this operation.");
    CHECK(shown["messages"][0]["icon"] == "information");
    CHECK_FALSE(gExcel);
}

TEST_CASE("a tool's caption, help and form come from its row") {
    Installation installation;
    const Object workbook(new ScriptedApplication);
    installation.application->answer = [&](const MemberName& name, Arguments) -> Variant {
        if (name == names::ActiveWorkbook) return workbook;
        throw Error(ErrorNumber::no_such_member);
    };
    const Object com = make_object<CCom>();
    com.put(QHelpFile, u"help.chm");
    installation.screen.begin_call(nlohmann::json::object());
    com.call(UTWorSum, installation.application_object);
    const nlohmann::json shown = installation.screen.end_call();
    REQUIRE(shown["forms"].size() == 1);
    CHECK(shown["forms"][0]["name"] == "frmWKSum");
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Worksheet Summary");
    CHECK(shown["forms"][0]["helpId"] == 170190);
    CHECK_FALSE(gExcel);
}

TEST_CASE("an error of the host leaves a tool with the tool's name in the trace") {
    Installation installation;
    installation.application->answer = [](const MemberName&, Arguments) -> Variant {
        throw Error(1004, u"Host", u"The host is busy.");
    };
    const Object com = make_object<CCom>();
    try {
        com.call(UTWorSum, installation.application_object);
        FAIL("nothing was raised");
    } catch (const Error& error) {
        CHECK(error.number() == 1004);
        CHECK(error.source() == u"UTWorSum\rHost");
        CHECK(error.description() == u"The host is busy.");
    }
    gExcel = Object();
}

TEST_CASE("a tool needs the application: without one, or with what is none, the call is refused") {
    Installation installation;
    const Object com = make_object<CCom>();
    CHECK(attempt([&] { com.call(UTWorSum); }) == 449);
    CHECK(attempt([&] { com.call(UTWorSum, 5); }) == 424);
    CHECK(attempt([&] { com.call(UTWorSum, Object()); }) == 91);
    gExcel = Object();
}

TEST_CASE("a command that fails leaves the application in gExcel, one that comes to its end does not") {
    Installation installation;  // whose application refuses everything
    const Object com = make_object<CCom>();
    std::size_t failed = 0;
    for (const Member<CCom>& member : CCom::members().rows()) {
        if (member.parameters.empty() || member.parameters.front() != u"objoleEx") continue;
        CAPTURE(to_utf8(member.name));
        gExcel = Object();
        std::vector<Variant> arguments(member.parameters.size(), u"1");
        arguments[0] = installation.application_object;
        installation.screen.begin_call(nlohmann::json::object());
        const std::int32_t error = attempt([&] { com.invoke(MemberName(member.name), Access::call, {arguments, {}}); });
        installation.screen.end_call();
        CHECK(static_cast<bool>(gExcel) == (error != 0));
        failed += error != 0 ? 1 : 0;
    }
    CHECK(failed > 20);
    gExcel = Object();
}

TEST_CASE("an argument that does not convert ends a command before it begins") {
    Installation installation;
    const Object com = make_object<CCom>();
    for (const auto* member : {u"UTBoo", u"UTCleRecFil"}) {
        CHECK(attempt([&] { com.call(MemberName(member), installation.application_object, u"soon"); }) == 13);
        CHECK_FALSE(gExcel);
    }
    CHECK(installation.application->accesses.empty());
}

TEST_CASE("help opens at its contents, and a refusal is passed over") {
    Installation installation;
    Variant file;
    installation.application->answer = [&](const MemberName& name, Arguments arguments) -> Variant {
        CHECK(name == names::Help);
        REQUIRE(arguments.positional.size() == 1);
        file = arguments.positional[0];
        throw Error(ErrorNumber::host_refused);
    };
    const Object com = make_object<CCom>();
    com.put(QHelpFile, u"help.chm");
    com.call(QOpenHelp, installation.application_object);
    CHECK(text_of(file) == u"help.chm");
    CHECK_FALSE(gExcel);
}

TEST_CASE("the current folder can be set, and a folder that is not there leaves it as it was") {
    Installation installation;
    const Object com = make_object<CCom>();
    const auto before = std::filesystem::current_path();
    const auto temporary = std::filesystem::canonical(std::filesystem::temp_directory_path());
    com.call(QSetCurrDir, temporary.u16string());
    CHECK(std::filesystem::current_path() == temporary);
    com.call(QSetCurrDir, u"/no such folder");
    CHECK(std::filesystem::current_path() == temporary);
    std::filesystem::current_path(before);
}

TEST_CASE("registration stops at the first refusal and the start goes on") {
    Installation installation;
    installation.application->answer = [](const MemberName&, Arguments) -> Variant {
        throw Error(ErrorNumber::host_refused);
    };
    const Object com = make_object<CCom>();
    CHECK(attempt([&] { com.call(QSetupFunc, installation.application_object); }) == 0);
    CHECK(installation.application->accesses == std::vector<std::u16string>{u"MacroOptions"});
    CHECK_FALSE(gExcel);
}

TEST_CASE("the start registers all functions, those of the companion too") {
    Installation installation;
    std::vector<std::u16string> registered;
    installation.application->answer = [&](const MemberName&, Arguments arguments) {
        registered.push_back(text_of(arguments.named[0].value));
        CHECK(text_of(arguments.named[4].value) == u"help.chm");
        return Variant();
    };
    const Object com = make_object<CCom>();
    com.put(QHelpFile, u"help.chm");
    com.call(QSetupFunc, installation.application_object);
    REQUIRE(registered.size() == 207);
    CHECK(registered.front() == u"APT");
    CHECK(registered[201] == u"CELLINFO");
    CHECK(registered.back() == u"WRKSHTINFO");
    for (const auto* name : {u"CELLINFO", u"EXCELUSERNAME", u"WRKBKINFO", u"WRKSHTINFO"}) {
        CHECK_FALSE(CCom::members().find(MemberName(name)));
    }
    CHECK_FALSE(gExcel);
}

TEST_CASE("every worksheet function is a member with its parameters' names") {
    Installation installation;
    const Object com = make_object<CCom>();
    CHECK(*com.call(ARNS, 100, 300, 1000).get_if<double>() == 0.2);
    CHECK(*com.call(ARNS, named(MemberName(u"dNetSales"), 1000), named(MemberName(u"dBgAR"), 100),
                    named(MemberName(u"dEdAR"), 300), named(MemberName(u"lDecPlace"), 1))
               .get_if<double>() == 0.2);
    CHECK(*com.call(ARNS, 100, 300, 0).get_if<double>() == 0.0);
    CHECK(attempt([&] { com.call(ARNS, 1, 2, 3, 4, 5); }) == 450);
    CHECK(attempt([&] { com.call(ARNS, 1, 2); }) == 449);
    CHECK(attempt([&] { com.call(ARNS, u"much", 2, 3); }) == 13);
    for (const Function& function : worksheet_functions()) {
        CAPTURE(function.help_id);
        CHECK(CCom::members().find(MemberName(function.name)));
    }
}

TEST_CASE("a parameter by reference goes back through the add-in to the caller") {
    Installation installation;
    const Object com = make_object<CCom>();
    const MemberName EPS(u"EPS"), DP(u"DP");
    std::vector<Variant> arguments{u"1000", u"300", u"100"};
    CHECK(*com.invoke(EPS, Access::call, {arguments, {}}).get_if<double>() == 3);
    CHECK(text_of(arguments[0]) == u"1000");
    REQUIRE(arguments[2].get_if<double>());
    CHECK(*arguments[2].get_if<double>() == 100);
    CHECK(*com.call(EPS, 1000, 400).get_if<double>() == 2.5);
    CHECK(*com.call(EPS, 1000, 400, Missing{}, 0).get_if<double>() == 2);

    arguments = {u"1000", u"300"};
    std::vector<NamedArgument> by_name{named(MemberName(u"lDecPlace"), u"2"), named(MemberName(u"dPrfrdDiv"), u"100")};
    CHECK(*com.invoke(EPS, Access::call, {arguments, by_name}).get_if<double>() == 3);
    CHECK(text_of(arguments[1]) == u"300");
    CHECK(text_of(by_name[0].value) == u"2");
    REQUIRE(by_name[1].value.get_if<double>());
    CHECK(*by_name[1].value.get_if<double>() == 100);

    arguments = {u"30", u"160", u"10"};
    CHECK(*com.invoke(DP, Access::call, {arguments, {}}).get_if<double>() == 0.2);
    CHECK(text_of(arguments[2]) == u"10");
}

TEST_CASE("reserved names are members too and give 0") {
    Installation installation;
    const Object com = make_object<CCom>();
    const MemberName MACRS(u"Macrs"), SEC179(u"SEC179");
    CHECK(*com.call(MACRS, 1, 2, 3, 4, 5, 6, 7, 8, u"1/1/2001", 10, Empty{}).get_if<double>() == 0);
    CHECK(*com.call(SEC179, 1000, 50, 2004, 1, 2, 3, named(MemberName(u"lDecPlace"), -1)).get_if<double>() == 0);
    CHECK(attempt([&] { com.call(SEC179, 1000, 50, 2004, 1, 2); }) == 449);
    CHECK(attempt([&] { com.call(SEC179, 1, 2, 3, 4, 5, 6, 7, 8); }) == 450);
}

TEST_CASE("every member of the table has a name of its own") {
    const auto& rows = CCom::members().rows();
    for (const auto& row : rows) CHECK(CCom::members().find(MemberName(row.name)) == &row);
}
