#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>

#include <nlohmann/json.hpp>

#include "apps/qorplus/calc_command.hpp"
#include "apps/qorplus/function_commands.hpp"
#include "apps/qorplus/office_library.hpp"
#include "apps/qorplus/transcript_table.hpp"
#include "apps/qorplus/usage_error.hpp"
#include "hosts/calc/office/process/office_error.hpp"

namespace qor::cli {
namespace {

// What the options and operands are stored in.
struct Request {
    bool as_json = false;
    bool as_tables = false;
    std::string script;
    std::vector<std::string> files;
};

enum ExitCode { done = 0, wrong_request = 2, host_failed = 3 };

// A script is checked as far as that can be done before LibreOffice is started.
std::string read_script(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path)) throw UsageError("the script " + path + " cannot be read");
    std::string text{std::istreambuf_iterator<char>(file), {}};
    try {
        const auto script = nlohmann::json::parse(text);
        if (!script.is_object()) throw UsageError("the script " + path + " is no JSON object");
    } catch (const nlohmann::json::parse_error& error) {
        throw UsageError(fmt::format("the script {} is no JSON: {}", path, error.what()));
    }
    return text;
}

void add_call(CLI::App& app) {
    CLI::App* call = app.add_subcommand("call", "Compute a worksheet function: qorplus call NAME [ARGUMENT...]");
    call->footer(
        "An argument that reads as a number is one. TRUE, FALSE, omitted, date:2024-02-29,\n"
        "date:2024-02-29T13:30:00 and text:12 say the rest; anything else is a text.\n\n"
        "Examples:\n"
        "  qorplus call ARNS 100 300 1000        prints 0.2\n"
        "  qorplus call ARNS 100 300 1000 1      the same to one decimal place\n"
        "  qorplus call ARA -5 2                 prints -2.5");
    call->prefix_command();  // an argument may begin with a minus sign
    call->callback([call] {
        std::vector<std::string> words = call->remaining();
        if (words.empty()) throw UsageError("which function? \"qorplus functions\" lists them all");
        const std::string name = words.front();
        words.erase(words.begin());
        std::cout << call_function(name, words) << '\n';
    });
}

void add_functions(CLI::App& app, Request& request) {
    CLI::App* functions = app.add_subcommand("functions", "List the worksheet functions");
    functions->footer(
        "Examples:\n"
        "  qorplus functions                     a line each: name, parameters, description\n"
        "  qorplus functions --json              all there is to know of them, for programs");
    functions->add_flag("--json", request.as_json, "As a JSON list, with kinds, defaults, help ids and examples");
    functions->callback([&request] { std::cout << (request.as_json ? list_functions_as_json() : list_functions()); });
}

void add_run(CLI::App& app, Request& request) {
    CLI::App* run = app.add_subcommand("run", "Play a script in a headless Calc and print its transcript");
    run->footer(
        "Paths in the script start from the current folder.\n\n"
        "Examples:\n"
        "  qorplus run summary.json              prints the transcript, a JSON object\n"
        "  qorplus run --table summary.json      prints what the script reads, as tables");
    run->add_option("SCRIPT", request.script, "The script, a JSON file")->required();
    run->add_flag("--table", request.as_tables, "Print the values that the script reads, as tables");
    run->callback([&request] {
        const std::string text = read_script(request.script);
        const std::string transcript = load_office_commands()->run(text, std::filesystem::current_path());
        std::cout << (request.as_tables ? transcript_tables(nlohmann::json::parse(transcript)) : transcript + "\n");
    });
}

void add_calc(CLI::App& app, Request& request) {
    CLI::App* calc = app.add_subcommand("calc", "Open Calc with the add-in");
    calc->footer(
        "Calc runs with a profile of its own, so your LibreOffice stays as it is and may be open at the same time.\n\n"
        "Examples:\n"
        "  qorplus calc                          an empty workbook\n"
        "  qorplus calc model.xlsx budget.ods    these workbooks");
    calc->add_option("FILE", request.files, "Workbooks to open");
    calc->callback([&request] { become_calc(request.files); });
}

void add_installation(CLI::App& app) {
    CLI::App* install = app.add_subcommand("install", "Add the add-in to your LibreOffice");
    install->footer("Close LibreOffice first. An earlier version is replaced.\n\nExample:\n  qorplus install");
    install->callback([] {
        load_office_commands()->install(library_folder() / "qorplus.oxt");
        std::cout << "The add-in is in your LibreOffice.\n";
    });
    CLI::App* uninstall = app.add_subcommand("uninstall", "Take the add-in out of your LibreOffice");
    uninstall->footer("Close LibreOffice first. Your settings stay.\n\nExample:\n  qorplus uninstall");
    uninstall->callback([] {
        const bool was_there = load_office_commands()->uninstall();
        std::cout << (was_there ? "The add-in is out of your LibreOffice.\n"
                                : "The add-in was not in your LibreOffice.\n");
    });
}

int report(const std::exception& error, ExitCode code) {
    std::cerr << "qorplus: " << error.what() << '\n';
    return code;
}

int run_command_line(int argument_count, char** arguments) {
    CLI::App app("QOR Plus: worksheet functions and tools for whole workbooks", "qorplus");
    app.set_version_flag("--version", "qorplus " QOR_VERSION);
    app.require_subcommand(1);
    app.footer(
        "Examples:\n"
        "  qorplus call ARNS 100 300 1000\n"
        "  qorplus functions\n"
        "  qorplus run summary.json\n"
        "  qorplus calc model.xlsx\n"
        "  qorplus install\n\n"
        "\"qorplus COMMAND --help\" shows more of each. Exit codes: 0 done, 2 the request or the script is wrong,\n"
        "3 LibreOffice is missing or failed.");
    Request request;
    add_call(app);
    add_functions(app, request);
    add_run(app, request);
    add_calc(app, request);
    add_installation(app);
    try {
        app.parse(argument_count, arguments);
        return done;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error);
        if (const auto words = app.remaining(); !words.empty() && app.get_subcommands().empty())
            return report(UsageError("there is no command " + words.front() + "; see \"qorplus --help\""),
                          wrong_request);
        std::cerr << "qorplus: " << error.what() << "; see \"qorplus --help\"\n";
        return wrong_request;
    } catch (const UsageError& error) {
        return report(error, wrong_request);
    } catch (const std::exception& error) {
        return report(error, host_failed);
    }
}

}  // namespace
}  // namespace qor::cli

int main(int argument_count, char** arguments) {
    return qor::cli::run_command_line(argument_count, arguments);
}
