// Starts a LibreOffice of its own, with the add-in, and runs a batch in it. The arguments are the batch's.
#include <unistd.h>

#include <chrono>
#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>
#include <vector>

#ifdef QOR_BATCH_ON_DISPLAY
#include "tests/batch/virtual_display.hpp"
#endif
#include "hosts/calc/office/private_office.hpp"
#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/office/process/office_location.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "hosts/calc/uno/service.hpp"
#include "platform/text.hpp"
#include "tests/support/temporary_folder.hpp"

namespace {

namespace fs = std::filesystem;
namespace calc = qor::calc;
using rtl::OUString;

constexpr std::chrono::minutes longest_run{30};  // under the sanitizers, beside other work
constexpr int failed_without_report = 3;

rtl::OUString text(std::string_view utf8) {
    return calc::to_uno(qor::from_utf8(utf8));
}

// The report of a run that LibreOffice did not survive says how far it came.
void print(const fs::path& report) {
    std::cout << std::ifstream(report).rdbuf() << std::flush;
    std::cout.clear();
}

// A hanging LibreOffice ends with this process.
void give_up_when_late(const fs::path& report) {
    std::thread([report] {
        std::this_thread::sleep_for(longest_run);
        print(report);
        std::cout << "the batch did not end in " << longest_run.count() << " minutes" << std::endl;
        ::_exit(failed_without_report);
    }).detach();
}

std::int32_t run_batch(calc::PrivateOffice& office, const fs::path& report, std::span<char*> arguments) {
    css::uno::Sequence<OUString> passed(static_cast<sal_Int32>(arguments.size()));
    std::ranges::transform(arguments, passed.getArray(), text);
    std::int32_t exit_code = failed_without_report;
    office.work([&] {
        const auto batch = calc::create_service<css::task::XJob>(office.context(), QOR_BATCH_SERVICE);
        if (!batch) throw calc::OfficeError("LibreOffice cannot load the batch");
        exit_code = calc::value_of<sal_Int32>(batch->execute(calc::sequence_of<css::beans::NamedValue>(
            {{"report", css::uno::Any(text(report.native()))}, {"arguments", css::uno::Any(passed)}})));
    });
    return exit_code;
}

}  // namespace

int main(int argc, char** argv) {
    const qor::test::TemporaryFolder folder;
    const fs::path report = folder.path / "report.txt";
    int exit_code = failed_without_report;
    try {
        const std::vector<fs::path> components{QOR_BATCH_COMPONENTS, QOR_EXTENSION_COMPONENTS};
#ifdef QOR_BATCH_ON_DISPLAY
        const calc::VirtualDisplay display;
        constexpr auto screen = calc::OfficeScreen::display;
#else
        constexpr auto screen = calc::OfficeScreen::none;
#endif
        calc::PrivateOffice office(calc::office_program_folder(), components, calc::Profile::fresh, {}, screen);
        give_up_when_late(report);
        exit_code = run_batch(office, report, {argv, static_cast<std::size_t>(argc)});
        print(report);
    } catch (const calc::OfficeError& error) {
        print(report);
        std::cout << error.what() << std::endl;
    }
    return exit_code;
}
