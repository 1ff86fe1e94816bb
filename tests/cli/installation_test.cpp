#include <doctest/doctest.h>

#include <chrono>
#include <fstream>
#include <thread>

#include "hosts/calc/office/office_socket.hpp"
#include "hosts/calc/office/process/office_location.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "tests/cli/program_run.hpp"
#include "tests/cli/temporary_folder.hpp"

namespace qor::cli {
namespace {

// What Calc with the user's own profile shows in the cell D1 of the workbook of another program, where the stored
// result is 99: 0.2 if the add-in is there, repairs the formula and computes it.
std::string shown_by_calc(const std::vector<std::string>& environment) {
    const TemporaryFolder folder;
    ProgramRun({calc::office_program_folder() / "soffice.bin", "--headless", "--norestore", "--convert-to", "csv",
                "--outdir", folder.path(), QOR_FOREIGN_WORKBOOK},
               "/", environment)
        .wait();
    std::ifstream table(folder.path() / "foreign.csv");
    std::string first_line;
    std::getline(table, first_line);
    return first_line.substr(first_line.rfind(',') + 1);
}

}  // namespace

TEST_CASE("the add-in is installed and uninstalled, as often as one likes") {
    const TemporaryFolder home;
    const std::vector<std::string> environment{"HOME=" + home.path().string(), "XDG_CONFIG_HOME="};
    const auto run = [&](const char* command) {
        ProgramRun program(qorplus({command}), "/", environment);
        const Outcome outcome = program.wait();
        CHECK(outcome.errors.empty());
        CHECK(outcome.exit_code == 0);
        CHECK(program.leaves_nothing());
        return outcome.output;
    };
    CHECK(run("uninstall") == "The add-in was not in your LibreOffice.\n");
    CHECK(shown_by_calc(environment) == "99");
    CHECK(run("install") == "The add-in is in your LibreOffice.\n");
    CHECK(shown_by_calc(environment) == "0.2");
    CHECK(run("install") == "The add-in is in your LibreOffice.\n");
    CHECK(shown_by_calc(environment) == "0.2");
    CHECK(run("uninstall") == "The add-in is out of your LibreOffice.\n");
    CHECK(shown_by_calc(environment) == "99");
    CHECK(run("uninstall") == "The add-in was not in your LibreOffice.\n");
}

TEST_CASE("a LibreOffice that is running is told of and left alone") {
    const TemporaryFolder home;
    const std::vector<std::string> environment{"HOME=" + home.path().string(), "XDG_CONFIG_HOME="};
    CHECK(run_program({"uninstall"}, "/", environment).exit_code == 0);  // makes the profile
    ProgramRun user({calc::office_program_folder() / "soffice.bin", "--headless", "--norestore",
                     "--accept=pipe,name=qorplus-test-" + home.path().filename().string() + ";urp;"},
                    "/", environment);
    const auto socket =
        calc::profile_socket(calc::to_uno(from_utf8("file://" + home.path().string() + "/.config/libreoffice/4")));
    for (int attempts = 0; attempts < 100 && !calc::is_listening(socket); ++attempts)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    check_refusal(run_program({"install"}, "/", environment), 3, "close LibreOffice first");
    check_refusal(run_program({"uninstall"}, "/", environment), 3, "close LibreOffice first");
    CHECK(user.processes("soffice.bin").size() == 1);
}

}  // namespace qor::cli
