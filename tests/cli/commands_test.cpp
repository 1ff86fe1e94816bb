#include <doctest/doctest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "tests/cli/program_run.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::cli {
namespace {

struct Call {
    std::vector<std::string> words;
    const char* printed;
};

struct Refusal {
    std::vector<std::string> words;
    const char* told;
};

nlohmann::json function_table() {
    return nlohmann::json::parse(run_program({"functions", "--json"}).output);
}

nlohmann::json entry_of(const char* name) {
    static const auto table = function_table();
    const auto entry = std::ranges::find_if(table, [&](const auto& one) { return one["name"] == name; });
    REQUIRE(entry != table.end());
    return *entry;
}

}  // namespace

TEST_CASE("call prints a function's result") {
    for (const Call& call : {
             Call{{"call", "ARNS", "100", "300", "1000"}, "0.2"},
             Call{{"call", "arns", "100", "300", "1000"}, "0.2"},
             Call{{"call", "ARA", "-5", "2"}, "-2.5"},
             Call{{"call", "ARA", "1e2", "+8"}, "12.5"},
             Call{{"call", "ARA", "1", "3"}, "0.3333"},
             Call{{"call", "ARA", "1", "3", "omitted"}, "0.3333"},
             Call{{"call", "ARA", "1", "3", "17"}, "0.3333333333333333"},
             Call{{"call", "ARA", "1", "3", "-1"}, "0"},
             Call{{"call", "ARA", "300000", "1"}, "300000"},
             Call{{"call", "ARA", "1", "0"}, "0"},
             Call{{"call", "ARA", "text:12", "3"}, "4"},
             Call{{"call", "MACRS", "1", "1", "1", "5", "10000", "0", "1", "2", "1/1/2001", "", "12/31/2001"}, "0"},
             Call{{"call", "sec179", "1000", "50", "2004", "2/3/1960", "1/1/2004", "12/31/2004", "2"}, "0"},
             Call{{"call", "HundredsTensUnits", "121", "TRUE"}, "One Hundred and Twenty One "},
             Call{{"call", "ARA", "TRUE", "1"}, "-1"},
             Call{{"call", "ARA", "date:1900-01-01", "1"}, "2"},
             Call{{"call", "ARA", "date:1900-01-01T12:00:00", "1"}, "2.5"},
         }) {
        CAPTURE(call.words);
        const Outcome outcome = run_program(call.words);
        CHECK(outcome.exit_code == 0);
        CHECK(outcome.output == std::string(call.printed) + "\n");
        CHECK(outcome.errors.empty());
    }
}

TEST_CASE("a request that is wrong is told in one line") {
    for (const auto& [words, told] : {
             Refusal{{}, "subcommand is required"},
             Refusal{{"compute"}, "no command compute"},
             Refusal{{"call"}, "which function?"},
             Refusal{{"call", "NOPE"}, "no function NOPE"},
             Refusal{{"call", "ARA", "1"}, "dAst is missing"},
             Refusal{{"call", "SEC179", "1"}, "dEEContribution is missing"},
             Refusal{{"call", "ARA", "omitted", "1"}, "dAR is missing"},
             Refusal{{"call", "ARA", "1", "2", "3", "4"}, "too many"},
             Refusal{{"call", "ARA", "apples", "2"}, "dAR must be a number, but apples is none"},
             Refusal{{"call", "ARA", "1", "2", "1e300"}, "lDecPlace must be a whole number, but 1e300 is none"},
             Refusal{{"call", "ARA", "1", ""}, "dAst must be a number, but the empty text is none"},
             Refusal{{"call", "ARA", "1", "inf"}, "dAst must be a number"},
             Refusal{{"call", "ARA", "date:2023-02-29", "2"}, "date:2023-02-29 is no date"},
             Refusal{{"call", "ARA", "date:2023-02-28T24:00:00", "2"}, "is no date"},
             Refusal{{"functions", "--xml"}, "--xml"},
             Refusal{{"run"}, "SCRIPT"},
             Refusal{{"run", "/no/such/script.json"}, "/no/such/script.json cannot be read"},
             Refusal{{"run", "/"}, "cannot be read"},
         }) {
        check_refusal(run_program(words), 2, told);
    }
}

TEST_CASE("a script that is no JSON is told before LibreOffice is asked") {
    const test::TemporaryFolder folder;
    for (const auto& [content, told] : {std::pair{"{\"steps\": [", "is no JSON"}, std::pair{"[]", "is no JSON object"},
                                        std::pair{"", "is no JSON"}, std::pair{"\xff\xfe", "is no JSON"}}) {
        std::ofstream(folder.path / "script.json") << content;
        check_refusal(run_program({"run", "script.json"}, folder.path, {"QORPLUS_LIBREOFFICE=/nowhere"}), 2, told);
    }
}

TEST_CASE("functions lists the table") {
    const Outcome lines = run_program({"functions"});
    CHECK(lines.exit_code == 0);
    CHECK(lines.output.find("ARNS dBgAR dEdAR dNetSales [lDecPlace=4]") != lines.output.npos);
    CHECK(static_cast<std::size_t>(std::ranges::count(lines.output, '\n')) == worksheet_functions().size());
}

TEST_CASE("functions lists for programs all that there is to know") {
    const auto table = function_table();
    REQUIRE(table.size() == 206);
    for (std::size_t place = 0; place < 203; ++place)
        CHECK(table[place]["name"] == to_utf8(worksheet_functions()[place].name));
    CHECK(entry_of("ARNS") == nlohmann::json::parse(R"({
        "name": "ARNS", "member": "ARNS", "registered": true, "category": 1, "categoryName": "Financial",
        "helpId": 100030, "description": "Returns the Accounts Receivable to Net Sales Ratio.",
        "parameters": [
            {"name": "dBgAR", "kind": "number", "optional": false, "byReference": false},
            {"name": "dEdAR", "kind": "number", "optional": false, "byReference": false},
            {"name": "dNetSales", "kind": "number", "optional": false, "byReference": false},
            {"name": "lDecPlace", "kind": "whole number", "optional": true, "byReference": false, "default": "4"}],
        "result": "number",
        "examples": [{"arguments": ["100", "300", "1000"], "result": "0.2"}]})"));
    CHECK(entry_of("HundredsTensUnits") == nlohmann::json::parse(R"({
        "name": "HundredsTensUnits", "member": "HundredsTensUnits", "registered": false,
        "parameters": [
            {"name": "TestValue", "kind": "whole number", "optional": false, "byReference": false},
            {"name": "UseAnd", "kind": "boolean", "optional": true, "byReference": true}],
        "result": "text",
        "examples": [{"arguments": ["21"], "result": "Twenty One "},
                     {"arguments": ["100", "TRUE"], "result": "One Hundred and "},
                     {"arguments": ["0"], "result": ""}]})"));
    CHECK(entry_of("DAR")["member"] == "dAR");
    CHECK(entry_of("PB")["member"] == "pb");
    CHECK(entry_of("EPS")["parameters"][2]["byReference"] == true);
    CHECK(entry_of("EMONTHNAME")["parameters"][1]["default"] == "FALSE");
    CHECK(entry_of("EMONTHNAME")["categoryName"] == "Date & Time");
    CHECK(entry_of("EMONTHNAME")["examples"][0]["arguments"][0] == "date:2004-02-15");
    CHECK(entry_of("EYEAR")["result"] == "value");
    CHECK(entry_of("MACRS")["registered"] == false);
    CHECK(entry_of("SEC179")["registered"] == false);
}

TEST_CASE("the listed examples are calls of the program") {
    std::size_t examples = 0;
    for (const auto& entry : function_table()) {
        for (const auto& example : entry["examples"]) {
            std::vector<std::string> words{"call", entry["name"]};
            for (const std::string argument : example["arguments"]) words.push_back(argument);
            CAPTURE(words);
            CHECK(run_program(words).output == example["result"].get<std::string>() + "\n");
            ++examples;
        }
    }
    CHECK(examples >= 206);
}

TEST_CASE("every command has help with examples") {
    for (const std::string command : {"call", "functions", "run", "calc", "install", "uninstall"}) {
        const Outcome help = run_program({command, "--help"});
        CAPTURE(command);
        CHECK(help.exit_code == 0);
        CHECK(help.output.find("\n  qorplus " + command) != help.output.npos);
    }
    CHECK(run_program({"--version"}).output == "qorplus 2.6.5\n");
}

TEST_CASE("without LibreOffice the functions work and the rest says what is missing") {
    const std::vector<std::string> nowhere{"QORPLUS_LIBREOFFICE=/nowhere"};
    CHECK(run_program({"call", "ARA", "1", "2"}, "/", nowhere).output == "0.5\n");
    const test::TemporaryFolder folder;
    std::ofstream(folder.path / "script.json") << "{}";
    check_refusal(run_program({"run", "script.json"}, folder.path, nowhere), 3, "no LibreOffice in /nowhere");
    check_refusal(run_program({"install"}, "/", nowhere), 3, "no LibreOffice in /nowhere");
}

TEST_CASE("calc needs a display and its files") {
    check_refusal(run_program({"calc"}, "/", {"DISPLAY=", "WAYLAND_DISPLAY="}), 3, "no display");
    check_refusal(run_program({"calc", "missing.xlsx"}, "/", {"DISPLAY=:99"}), 2, "no file missing.xlsx");
}

}  // namespace qor::cli
