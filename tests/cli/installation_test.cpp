#include <doctest/doctest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "hosts/calc/office/office_socket.hpp"
#include "hosts/calc/office/private_office.hpp"
#include "hosts/calc/office/process/office_location.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "tests/calc_document/calc_document.hpp"
#include "tests/cli/program_run.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::cli {
namespace {

// A home folder of its own, for this process and for those that it starts.
class OtherHome {
  public:
    OtherHome() {
        if (const char* home = std::getenv("HOME")) before_ = home;
        ::setenv("HOME", folder_.path.c_str(), 1);
        ::unsetenv("XDG_CONFIG_HOME");
    }
    OtherHome(const OtherHome&) = delete;
    OtherHome& operator=(const OtherHome&) = delete;
    ~OtherHome() { ::setenv("HOME", before_.c_str(), 1); }

    const std::filesystem::path& path() const { return folder_.path; }

  private:
    test::TemporaryFolder folder_;
    std::string before_ = "/";
};

// What the user's own Calc shows in the cell D1 of the workbook of another program, where the stored result is 99:
// 0.2 if the add-in is there, repairs the formula and computes it.
std::string shown_by_calc() {
    const calc::PrivateOffice users(calc::office_program_folder(), {}, calc::Profile::of_user);
    return calc::tests::CalcDocument(users.context().reference(), QOR_FOREIGN_WORKBOOK).shown("D1");
}

}  // namespace

TEST_CASE("the add-in is installed and uninstalled, as often as one likes") {
    const OtherHome home;
    const auto run = [&](const char* command) {
        ProgramRun program(qorplus({command}));
        const Outcome outcome = program.wait();
        CHECK(outcome.errors.empty());
        CHECK(outcome.exit_code == 0);
        CHECK(program.leaves_nothing());
        return outcome.output;
    };
    CHECK(run("uninstall") == "The add-in was not in your LibreOffice.\n");
    CHECK(shown_by_calc() == "99");
    CHECK(run("install") == "The add-in is in your LibreOffice.\n");
    CHECK(shown_by_calc() == "0.2");
    CHECK(run("install") == "The add-in is in your LibreOffice.\n");
    CHECK(shown_by_calc() == "0.2");
    CHECK(run("uninstall") == "The add-in is out of your LibreOffice.\n");
    CHECK(shown_by_calc() == "99");
    CHECK(run("uninstall") == "The add-in was not in your LibreOffice.\n");
}

TEST_CASE("a LibreOffice that is running is told of and left alone") {
    const OtherHome home;
    CHECK(run_program({"uninstall"}).exit_code == 0);  // makes the profile
    ProgramRun user({calc::office_program_folder() / "soffice.bin", "--headless", "--norestore",
                     "--accept=pipe,name=qorplus-test-" + home.path().filename().string() + ";urp;"});
    const auto socket =
        calc::profile_socket(calc::to_uno(from_utf8("file://" + home.path().string() + "/.config/libreoffice/4")));
    for (int attempts = 0; attempts < 100 && !calc::is_listening(socket); ++attempts)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    check_refusal(run_program({"install"}), 3, "close LibreOffice first");
    check_refusal(run_program({"uninstall"}), 3, "close LibreOffice first");
    CHECK(user.processes("soffice.bin").size() == 1);
}

}  // namespace qor::cli
