#include <doctest/doctest.h>

#include <nlohmann/json.hpp>

#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "screens/script/script_screen.hpp"
#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using fakes::CommandHost;
using fakes::Lines;
using test::error_from;

namespace {

using Scripted = fakes::CommandHostWith<ScriptScreen>;

const MemberName ARNS(u"ARNS");

}  // namespace

TEST_CASE_FIXTURE(CommandHost, "the toggles ask for a workbook and do no more") {
    for (const auto* name :
         {u"TBWinSel", u"TBWinSetPagBre", u"TBWinSetRowColHea", u"TBWinSetHorScrBar", u"TBWinSetFor", u"TBWinSetOutSym",
          u"TBWinSetVerScrBar", u"TBWinSetGri", u"TBWinSetZerVal", u"TBWinSetSheTab", u"TBWinSetIntZoo"}) {
        screen.log.clear();
        application.holds(names::ActiveWorkbook, Object());
        call(name);
        CHECK(screen.log == Lines{u"message Sorry, but you must have an active workbook to perform this operation."});
        application.holds(names::ActiveWorkbook, make(u"Workbook"));
        host_log.calls = 0;
        call(name);
        CHECK(screen.log.size() == 1);
        CHECK(host_log.calls == 1);
        CHECK_FALSE(gExcel);
    }
    host_log.refuses = [](auto, auto, auto) { return true; };
    CHECK(error_from([&] { call(u"TBWinSel"); }).source() == u"TBWinSel\r");
}

TEST_CASE_FIXTURE(CommandHost, "every worksheet function is a member with its parameters' names") {
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

TEST_CASE_FIXTURE(CommandHost, "a parameter by reference goes back through the add-in to the caller") {
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

TEST_CASE_FIXTURE(CommandHost, "reserved names are members too and give 0") {
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

TEST_CASE_FIXTURE(Scripted,
                  "a command that fails leaves the application in gExcel, one that comes to its end does not") {
    host_log.refuses = [](auto, auto, auto) { return true; };
    std::size_t failed = 0;
    for (const Member<CCom>& member : CCom::members().rows()) {
        if (member.parameters.empty() || member.parameters.front() != u"objoleEx") continue;
        CAPTURE(to_utf8(member.name));
        gExcel = Object();
        std::vector<Variant> arguments(member.parameters.size(), u"1");
        arguments[0] = host;
        screen.begin_call(nlohmann::json::object());
        const std::int32_t error = attempt([&] { com.invoke(MemberName(member.name), Access::call, {arguments, {}}); });
        screen.end_call();
        CHECK(static_cast<bool>(gExcel) == (error != 0));
        failed += error != 0 ? 1 : 0;
    }
    CHECK(failed > 20);
}

TEST_CASE_FIXTURE(Scripted, "an argument that does not convert ends a command before it begins") {
    for (const auto* member : {u"UTBoo", u"UTCleRecFil"}) {
        CHECK(attempt([&] { call(member, u"soon"); }) == 13);
        CHECK_FALSE(gExcel);
    }
    CHECK(host_log.calls == 0);
}
