#include "core/tool_launch.hpp"

#include <doctest/doctest.h>

#include <nlohmann/json.hpp>

#include "screens/script/script_screen.hpp"
#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"

using namespace qor;

namespace {

using Scripted = fakes::CommandHostWith<ScriptScreen>;

const MemberName UTWorSum(u"UTWorSum"), QHelpFile(u"QHelpFile");

}  // namespace

TEST_CASE_FIXTURE(Scripted, "a tool without an active workbook says so and makes no form") {
    application.holds(names::ActiveWorkbook, Object());
    screen.begin_call(nlohmann::json::object());
    com.call(UTWorSum, host);
    const nlohmann::json shown = screen.end_call();
    CHECK(shown["forms"].empty());
    REQUIRE(shown["messages"].size() == 1);
    CHECK(shown["messages"][0]["title"] == "QOR Plus");
    CHECK(shown["messages"][0]["text"] == "Sorry, but you must have an active workbook to perform this operation.");
    CHECK(shown["messages"][0]["icon"] == "information");
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Scripted, "a tool's caption, help and form come from its row") {
    com.put(QHelpFile, u"help.chm");
    screen.begin_call(nlohmann::json::object());
    com.call(UTWorSum, host);
    const nlohmann::json shown = screen.end_call();
    REQUIRE(shown["forms"].size() == 1);
    CHECK(shown["forms"][0]["name"] == "frmWKSum");
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Worksheet Summary");
    CHECK(shown["forms"][0]["helpId"] == 170190);
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Scripted, "an error of the host leaves a tool with the tool's name in the trace") {
    application.answers(names::ActiveWorkbook,
                        [](Access, fakes::Values) -> Variant { throw Error(1004, u"Host", u"The host is busy."); });
    const Error error = test::error_from([&] { com.call(UTWorSum, host); });
    CHECK(error.number() == 1004);
    CHECK(error.source() == u"UTWorSum\rHost");
    CHECK(error.description() == u"The host is busy.");
}

TEST_CASE_FIXTURE(Scripted, "a tool needs the application: without one, or with what is none, the call is refused") {
    CHECK(attempt([&] { com.call(UTWorSum); }) == 449);
    CHECK(attempt([&] { com.call(UTWorSum, 5); }) == 424);
    CHECK(attempt([&] { com.call(UTWorSum, Object()); }) == 91);
}
