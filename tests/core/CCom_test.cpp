#include "core/CCom.hpp"

#include <doctest/doctest.h>

#include <filesystem>

#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using fakes::CommandHost;
using fakes::Lines;
using fakes::Values;
using test::raised;

namespace {

const MemberName QTitle(u"QTitle"), QCompany(u"QCompany"), QMajor(u"QMajor"), QMinor(u"QMinor"),
    QCurrentTab(u"QCurrentTab"), QDoSelectionChange(u"QDoSelectionChange"), QGetSetting(u"QGetSetting"),
    QSaveSetting(u"QSaveSetting"), QHelpFile(u"QHelpFile"), QSetCurrDir(u"QSetCurrDir"),
    HundredsTensUnits(u"HundredsTensUnits"), NUMBERTOWORDS(u"NUMBERTOWORDS"), UseAnd(u"UseAnd");

struct NumberWords : CommandHost {
    template <class... Args>
    std::u16string words(Args&&... arguments) const {
        return text_of(com.call(HundredsTensUnits, std::forward<Args>(arguments)...));
    }
};

}  // namespace

TEST_CASE_FIXTURE(CommandHost, "the add-in tells its title, company and version, and nobody can write them") {
    CHECK(text_of(com.get(QTitle)) == u"QOR Plus");
    CHECK(text_of(com.get(QCompany)) == u"Ombrel");
    CHECK(*com.get(QMajor).get_if<std::int32_t>() == 2);
    CHECK(*com.get(QMinor).get_if<std::int32_t>() == 6);
    CHECK(attempt([&] { com.put(QTitle, u"Other"); }) == 438);
}

TEST_CASE_FIXTURE(CommandHost, "plain properties start empty and keep what is written") {
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

TEST_CASE_FIXTURE(CommandHost, "a value that does not convert leaves a plain property as it was, without an error") {
    com.put(QCurrentTab, 2);
    CHECK(attempt([&] { com.put(QCurrentTab, u"second"); }) == 0);
    CHECK(*com.get(QCurrentTab).get_if<std::int32_t>() == 2);
}

TEST_CASE_FIXTURE(CommandHost, "whether comments show upon entry is read from the settings at creation") {
    const auto at_creation = [] { return *make_object<CCom>().get(QDoSelectionChange).get_if<bool>(); };
    CHECK_FALSE(at_creation());
    constexpr std::u16string_view option = u"chkT4ViewCellCommentsUponEntry";
    settings.set_option(option, u"-1");
    CHECK(at_creation());
    settings.set_option(option, u"0");
    CHECK_FALSE(at_creation());
    settings.set_option(option, u"perhaps");
    CHECK_FALSE(at_creation());
}

TEST_CASE_FIXTURE(CommandHost, "the companion reaches the settings through the add-in") {
    CHECK(text_of(com.call(QGetSetting, u"Options", u"txtT2", u"none")) == u"none");
    CHECK(*com.call(QSaveSetting, u"Options", u"txtT2", u"").get_if<bool>());
    CHECK(text_of(com.call(QGetSetting, u"Options", u"txtT2", u"none")).empty());
    com.call(QSaveSetting, u"Options", u"*", u"unnamed");
    CHECK(settings.values.at({u"Options", u""}) == u"unnamed");
}

TEST_CASE_FIXTURE(CommandHost, "help opens at its contents, and a refusal is passed over") {
    Variant file;
    application.answers(names::Help, [&](Access, Values arguments) -> Variant {
        REQUIRE(arguments.size() == 1);
        file = arguments[0];
        throw Error(ErrorNumber::host_refused);
    });
    com.put(QHelpFile, u"help.chm");
    call(u"QOpenHelp");
    CHECK(host_log.calls == 1);
    CHECK(text_of(file) == u"help.chm");
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(CommandHost, "the current folder can be set, and a folder that is not there leaves it as it was") {
    const auto before = std::filesystem::current_path();
    const test::TemporaryFolder folder;
    const auto temporary = std::filesystem::canonical(folder.path);
    com.call(QSetCurrDir, temporary.u16string());
    CHECK(std::filesystem::current_path() == temporary);
    com.call(QSetCurrDir, u"/no such folder");
    CHECK(std::filesystem::current_path() == temporary);
    std::filesystem::current_path(before);
}

TEST_CASE_FIXTURE(CommandHost, "registration stops at the first refusal and the start goes on") {
    application.answers(names::MacroOptions, [this](Access, Values) -> Variant {
        done.emplace_back(u"MacroOptions");
        throw Error(ErrorNumber::host_refused);
    });
    CHECK(attempt([&] { call(u"QSetupFunc"); }) == 0);
    CHECK(done == Lines{u"MacroOptions"});
    CHECK(host_log.calls == 1);
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(CommandHost, "the start registers all functions, those of the companion too") {
    Lines registered;
    application.answers(names::MacroOptions, [&](Access, Values arguments) -> Variant {
        registered.push_back(text_of(arguments[0]));
        CHECK(text_of(arguments[4]) == u"help.chm");
        return {};
    });
    com.put(QHelpFile, u"help.chm");
    call(u"QSetupFunc");
    REQUIRE(registered.size() == 207);
    CHECK(registered.front() == u"APT");
    CHECK(registered[201] == u"CELLINFO");
    CHECK(registered.back() == u"WRKSHTINFO");
    for (const auto* name : {u"CELLINFO", u"EXCELUSERNAME", u"WRKBKINFO", u"WRKSHTINFO"}) {
        CHECK_FALSE(CCom::members().find(MemberName(name)));
    }
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(NumberWords, "groups are spelled once the object has its words") {
    com.call(NUMBERTOWORDS, u"abc");
    CHECK(words(21) == u"Twenty One ");
    CHECK(words(100, true) == u"One Hundred and ");
    CHECK(words(134, true) == u"One Hundred and Thirty Four ");
    CHECK(words(999) == u"Nine Hundred Ninety Nine ");
    CHECK(words(7, true) == u"and Seven ");
    CHECK(words(0).empty());
    CHECK(words(0, true) == u"and ");
    CHECK(words(-5).empty());
    CHECK(words(1000) == u"Ten Hundred ");
    CHECK(words(u"12", named(UseAnd, false)) == u"Twelve ");
}

TEST_CASE_FIXTURE(NumberWords, "before the first number in words a group above 0 has no words") {
    CHECK(raised([&] { words(1); }) == 9);
    CHECK(raised([&] { words(21, true); }) == 9);
    CHECK(raised([&] { words(100); }) == 9);
    CHECK(words(0).empty());
    CHECK(words(0, true) == u"and ");
    CHECK(words(-1).empty());
    com.call(NUMBERTOWORDS, 5);
    CHECK(words(1) == u"One ");
    CHECK(raised([] { make_object<CCom>().call(HundredsTensUnits, 1); }) == 9);  // each object has its own
}

TEST_CASE_FIXTURE(NumberWords, "a group beyond the table and one beyond 16 bits are refused") {
    com.call(NUMBERTOWORDS, 5);
    CHECK(words(2700) == u"Ninety Hundred ");
    CHECK(raised([&] { words(2800); }) == 9);
    CHECK(raised([&] { words(40000); }) == 6);
    CHECK(raised([&] { words(); }) == 449);
    CHECK(raised([&] { words(1, true, 3); }) == 450);
}

TEST_CASE_FIXTURE(NumberWords, "the and goes back to the caller as the boolean that it is") {
    std::vector<Variant> arguments{0, u"-1"};
    com.invoke(HundredsTensUnits, Access::call, {arguments, {}});
    REQUIRE(arguments[1].get_if<bool>());
    CHECK(*arguments[1].get_if<bool>());
    CHECK(arguments[0].is(Variant::Kind::long_integer));
    arguments[1] = Missing{};
    com.invoke(HundredsTensUnits, Access::call, {arguments, {}});
    CHECK(arguments[1].is_missing());
}
