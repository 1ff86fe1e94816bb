#include <doctest/doctest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "tests/cli/program_run.hpp"
#include "tests/cli/temporary_folder.hpp"

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
    const TemporaryFolder folder;
    for (const auto& [content, told] : {std::pair{"{\"steps\": [", "is no JSON"}, std::pair{"[]", "is no JSON object"},
                                        std::pair{"", "is no JSON"}, std::pair{"\xff\xfe", "is no JSON"}}) {
        std::ofstream(folder.path() / "script.json") << content;
        check_refusal(run_program({"run", "script.json"}, folder.path(), {"QORPLUS_LIBREOFFICE=/nowhere"}), 2, told);
    }
}

TEST_CASE("functions lists the table") {
    const Outcome lines = run_program({"functions"});
    CHECK(lines.exit_code == 0);
    CHECK(lines.output.find("ARNS dBgAR dEdAR dNetSales [lDecPlace=4]") != lines.output.npos);
    CHECK(static_cast<std::size_t>(std::ranges::count(lines.output, '\n')) == worksheet_functions().size());

    const auto table = nlohmann::json::parse(run_program({"functions", "--json"}).output);
    REQUIRE(table.size() == worksheet_functions().size());
    for (std::size_t place = 0; place < table.size(); ++place)
        CHECK(table[place]["name"] == to_utf8(worksheet_functions()[place].name));
    const auto arns = std::ranges::find_if(table, [](const auto& entry) { return entry["name"] == "ARNS"; });
    CHECK(*arns == nlohmann::json::parse(R"({
        "name": "ARNS", "category": 1, "helpId": 100030, "result": "number",
        "description": "Returns the Accounts Receivable to Net Sales Ratio.",
        "parameters": [{"name": "dBgAR", "kind": "number", "optional": false},
                       {"name": "dEdAR", "kind": "number", "optional": false},
                       {"name": "dNetSales", "kind": "number", "optional": false},
                       {"name": "lDecPlace", "kind": "whole number", "optional": true, "default": "4"}]})"));
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
    const TemporaryFolder folder;
    std::ofstream(folder.path() / "script.json") << "{}";
    check_refusal(run_program({"run", "script.json"}, folder.path(), nowhere), 3, "no LibreOffice in /nowhere");
    check_refusal(run_program({"install"}, "/", nowhere), 3, "no LibreOffice in /nowhere");
}

TEST_CASE("calc needs a display and its files") {
    check_refusal(run_program({"calc"}, "/", {"DISPLAY=", "WAYLAND_DISPLAY="}), 3, "no display");
    check_refusal(run_program({"calc", "missing.xlsx"}, "/", {"DISPLAY=:99"}), 2, "no file missing.xlsx");
}

}  // namespace qor::cli
