#include <doctest/doctest.h>
#include <fmt/format.h>

#include <array>
#include <chrono>
#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <csignal>
#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

#include "hosts/calc/uno/service.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "tests/cli/calc_fixture.hpp"
#include "tests/cli/program_run.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

// A folder with the workbook book.xlsx, which is open in every script here, and nothing else.
class Workplace {
  public:
    Workplace() { fs::copy_file(QOR_FOREIGN_WORKBOOK, path() / "book.xlsx"); }

    const fs::path& path() const { return folder_.path; }
    void write_script(const json& script) const { std::ofstream(scripts_.path / "script.json") << script; }
    std::vector<std::string> command() const { return {"run", scripts_.path / "script.json"}; }

    Outcome run(const json& steps, json others = json::object()) const {
        others["steps"] = steps;
        if (!others.contains("open")) others["open"] = {"book.xlsx"};
        write_script(others);
        ProgramRun program(qorplus(command()), path());
        Outcome outcome = program.wait();
        CHECK(program.leaves_nothing());
        return outcome;
    }

    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(path())) names.push_back(entry.path().filename());
        std::ranges::sort(names);
        return names;
    }

  private:
    test::TemporaryFolder folder_;
    test::TemporaryFolder scripts_;
};

// Plays a script in the office of these tests, as the program's own office does.
json play_in_office(const json& script, const Workplace& place) {
    namespace beans = com::sun::star::beans;
    namespace uno = com::sun::star::uno;
    const auto named_text = [](const char* name, const std::string& text) {
        return beans::NamedValue(rtl::OUString::createFromAscii(name), uno::Any(calc::to_uno(from_utf8(text))));
    };
    const test::TemporaryFolder temporary;
    const std::array arguments{named_text("Script", script.dump()), named_text("Folder", place.path()),
                               named_text("TemporaryFolder", temporary.path), named_text("HiddenName", ".writing")};
    const auto session =
        calc::create_service<com::sun::star::task::XJob>(office().context(), "com.ombrel.qorplus.Session");
    rtl::OUString answer;
    session->execute({arguments.data(), static_cast<sal_Int32>(arguments.size())}) >>= answer;
    return json::parse(to_utf8(calc::view_of(answer)));
}

struct Refusal {
    const char* step;
    const char* told;
};

}  // namespace

TEST_CASE("a script selects, calls, reads and saves") {
    const Workplace place;
    const Outcome outcome = place.run(json::parse(R"([
        {"select": {"workbook": "book.xlsx", "sheets": ["Ratios"], "range": "A1:B2"}},
        {"call": "ARNS", "args": [100, 300, 1000]},
        {"call": "ARA", "args": ["words", 2]},
        {"call": "QSaveSetting", "args": ["Options", "chkOne", "-1"]},
        {"call": "QGetSetting", "args": ["Options", "chkOne", "none"]},
        {"call": "QGetSetting", "args": ["Options", "chkTwo", "none"]},
        {"read": {"sheet": 1, "range": "A1:D2"}},
        {"read": {"sheet": "ratios", "range": "C5"}},
        {"save": "active", "as": "copy.ods"},
        {"read": {"workbook": "copy.ods", "sheet": 1, "range": "A2:C2"}}])"),
                                      {{"settings", {{"Options", {{"chkTwo", "0"}}}}}});
    CAPTURE(outcome.errors);
    REQUIRE(outcome.exit_code == 0);
    const json steps = json::parse(outcome.output)["steps"];
    CHECK(steps[0]["select"] == "book.xlsx, Ratios, A1:B2");
    CHECK(steps[1]["result"] == 0.2);
    CHECK(steps[1]["error"] == nullptr);
    CHECK(steps[2]["result"] == nullptr);
    CHECK(steps[2]["error"]["number"] == 13);
    CHECK(steps[3]["result"] == true);
    CHECK(steps[4]["result"] == "-1");
    CHECK(steps[5]["result"] == "0");
    CHECK(steps[6]["read"]["values"] == json::parse("[[100, 300, 0.2, 0.2], [5, 2, 2.5, null]]"));
    CHECK(steps[6]["read"]["formulas"][0][2] == "=ARNS(A1,B1,1000)");
    CHECK(steps[6]["read"]["formulas"][1][3] == nullptr);
    CHECK(steps[6]["read"]["formats"][0][0] == "General");
    CHECK(steps[8]["save"] == (place.path() / "copy.ods").string());
    CHECK(steps[9]["read"]["values"] == json::parse("[[5, 2, 2.5]]"));
    CHECK(place.files() == std::vector<std::string>{"book.xlsx", "copy.ods"});
}

TEST_CASE("a script that does not fit is told, and nothing is left behind") {
    const Workplace place;
    for (const Refusal& refusal : {
             Refusal{R"({"dance": 1})", "step 1 is none of select, call, read and save"},
             Refusal{R"({"call": "ARA", "arg": [1]})", "unknown key \"arg\"; known are"},
             Refusal{R"({"call": "NOPE"})", "no member \"NOPE\"; there are: "},
             Refusal{R"({"call": "ARA", "args": [1, 2, 3, 4]})", "takes at most 3 arguments, but 4 are given"},
             Refusal{R"({"call": "UTWorSum", "args": [1]})", "takes at most 0 arguments"},
             Refusal{R"({"call": "UTWorSum", "forms": [[{"press": "cmdNothing"}]]})", "cmdNothing"},
             Refusal{R"({"call": "UTWorSum", "forms": [[{"check": "ctlTreeView", "node": "absent*Sheet"}]]})",
                     "absent*Sheet"},
             Refusal{R"({"read": {"workbook": "other.xlsx"}})", "no workbook \"other.xlsx\"; open are: book.xlsx"},
             Refusal{R"({"read": {"sheet": "Absent"}})", "no sheet \"Absent\" in book.xlsx; there are: Ratios"},
             Refusal{R"({"read": {"sheet": 2}})", "no sheet 2 in book.xlsx; there are: Ratios"},
             Refusal{R"({"read": {"sheet": true}})", "a sheet must be a name or a number"},
             Refusal{R"({"read": {"range": "not a range"}})", "no range \"not a range\" in the sheet Ratios"},
             Refusal{R"({"select": {"workbook": 5}})", "must be string"},
             Refusal{R"({"save": "active", "as": "no/such/folder/out.xlsx"})", "no/such/folder"},
             Refusal{R"({"save": "active", "as": "book.xlsx/out.xlsx"})", "nothing can be written in"},
         }) {
        CAPTURE(refusal.step);
        const json answer = play_in_office({{"open", {"book.xlsx"}}, {"steps", {json::parse(refusal.step)}}}, place);
        REQUIRE(answer.contains("error"));
        CHECK(answer["error"]["kind"] == "script");
        const std::string message = answer["error"]["message"];
        CAPTURE(message);
        CHECK(message.find(refusal.told) != message.npos);
        CHECK(message.find('\n') == message.npos);
    }
    check_refusal(place.run(json::parse(R"([{"call": "NOPE"}])")), 2, "no member \"NOPE\"; there are: ");
    CHECK(place.files() == std::vector<std::string>{"book.xlsx"});
}

TEST_CASE("a workbook that is missing or damaged is told by its name") {
    const Workplace place;
    check_refusal(place.run(json::array(), {{"open", {"missing.xlsx"}}}), 2,
                  "there is no file " + (place.path() / "missing.xlsx").string());
    std::ofstream(place.path() / "damaged.xlsx") << "PK\x03\x04 and no more";
    check_refusal(place.run(json::array(), {{"open", {"damaged.xlsx"}}}), 2, "damaged.xlsx");
}

TEST_CASE("when LibreOffice or the program is killed, nothing is left behind and no half file") {
    const Workplace place;
    json steps = json::parse(R"([{"save": "active", "as": "first.xlsx"}])");
    for (int count = 0; count < 400; ++count) {
        steps.push_back(json::parse(R"({"read": {"sheet": 1, "range": "A1:Z2000"}})"));
        steps.push_back(json::parse(R"({"save": "active", "as": "second.ods"})"));
    }
    place.write_script({{"open", {"book.xlsx"}}, {"steps", steps}});
    ProgramRun program(qorplus(place.command()), place.path());
    while (!fs::exists(place.path() / "first.xlsx")) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const std::vector<pid_t> offices = program.processes("soffice.bin");
    REQUIRE(offices.size() == 1);
    SUBCASE("LibreOffice") {
        ::kill(offices.front(), SIGKILL);
        check_refusal(program.wait(), 3, "LibreOffice ended unexpectedly");
    }
    SUBCASE("the program by an interrupt") {
        ::kill(program.id(), SIGINT);
        CHECK(program.wait().exit_code == 128 + SIGINT);
    }
    SUBCASE("the program at once") {
        ::kill(program.id(), SIGKILL);
        CHECK(program.wait().exit_code == 128 + SIGKILL);
    }
    CHECK(program.leaves_nothing());
    const std::vector<std::string> left = place.files();
    CHECK((left == std::vector<std::string>{"book.xlsx", "first.xlsx"} ||
           left == std::vector<std::string>{"book.xlsx", "first.xlsx", "second.ods"}));
}

}  // namespace qor::cli
