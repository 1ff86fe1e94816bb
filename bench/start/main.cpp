// How long Calc takes to come with a window and to be free for its user, and how much memory it then holds: without the
// add-in and with it. The two are started in turn, after a start of each that makes its profile.
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <com/sun/star/awt/AsyncCallback.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <cppuhelper/implbase1.hxx>
#include <fstream>
#include <future>
#include <iostream>
#include <iterator>
#include <rtl/ref.hxx>
#include <sstream>
#include <thread>

#include "hosts/calc/bars/module_ui.hpp"
#include "hosts/calc/office/office_pipe.hpp"
#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/office/process/office_location.hpp"
#include "hosts/calc/office/process/office_process.hpp"
#include "hosts/calc/office/process/start_variable.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "hosts/calc/uno/text.hpp"
#include "tests/batch/virtual_display.hpp"

namespace {

namespace fs = std::filesystem;
namespace calc = qor::calc;
namespace css = com::sun::star;
using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr int repetitions = 7;
constexpr auto longest_start = 90s;

struct Measure {
    double seconds = 0;
    double processor = 0;  // seconds
    double megabytes = 0;
};

class Called final : public cppu::WeakImplHelper1<css::awt::XCallback> {
  public:
    std::promise<void> done;
    void SAL_CALL notify(const css::uno::Any&) override { done.set_value(); }
};

// When the main thread next has nothing else to do.
void wait_until_free(const calc::Context& context) {
    const rtl::Reference<Called> called(new Called);
    std::future<void> done = called->done.get_future();
    css::awt::AsyncCallback::create(context.reference())->addCallback(called.get(), {});
    if (done.wait_for(longest_start) != std::future_status::ready) throw calc::OfficeError("Calc is never free");
}

std::string content_of(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

fs::path process_folder(const std::string& mark) {
    for (const auto& entry : fs::directory_iterator("/proc")) {
        if (content_of(entry.path() / "comm") != "soffice.bin\n") continue;
        if (content_of(entry.path() / "cmdline").find(mark) != std::string::npos) return entry.path();
    }
    throw calc::OfficeError("Calc is gone");
}

double megabytes_of(const fs::path& process) {
    const std::string text = content_of(process / "status");
    return std::stod(text.substr(text.find("\nVmRSS:") + 8)) / 1024;
}

// What it has had of the processors, in seconds.
double processor_time_of(const fs::path& process) {
    const std::string text = content_of(process / "stat");
    std::istringstream fields(text.substr(text.rfind(')') + 2));
    constexpr int before = 11;  // of the fields behind the name
    std::string ignored;
    for (int field = 0; field < before; ++field) fields >> ignored;
    double user = 0;
    double system = 0;
    fields >> user >> system;
    return (user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

bool has_menu(const calc::Context& context, sal_Int32 entries) {
    const calc::ModuleUi ui(context);
    return ui.manager()->getSettings(calc::to_uno(calc::menu_bar_url), false)->getCount() >= entries;
}

// Waits for as many menus.
Measure start(const fs::path& folder, const fs::path& extensions, sal_Int32 menus) {
    const std::string pipe = folder.filename().string() + std::to_string(Clock::now().time_since_epoch().count());
    calc::OfficeStart how;
    how.program = calc::office_program_folder();
    how.arguments = {"--calc",
                     "--norestore",
                     "--nologo",
                     "--nofirststartwizard",
                     "--accept=pipe,name=" + pipe + ";urp;",
                     "-env:UserInstallation=" + calc::address_in_variable(folder / "profile"),
                     "-env:BUNDLED_EXTENSIONS=" + calc::address_in_variable(extensions)};
    how.environment = {"SAL_USE_VCLPLUGIN=gtk3",
                       "NO_AT_BRIDGE=1",
                       "LC_ALL=C.UTF-8",
                       "HOME=" + folder.string(),
                       "XDG_CONFIG_HOME=" + (folder / "config").string(),
                       "XDG_DATA_HOME=" + (folder / "data").string()};
    const auto begin = Clock::now();
    const calc::OfficeProcess process(how);
    Measure measure;
    while (measure.seconds == 0) {
        if (process.ends_within(5ms) || Clock::now() - begin > longest_start)
            throw calc::OfficeError("Calc does not start");
        const auto context = calc::office_at_pipe(how.program, pipe);
        if (!context || !css::frame::Desktop::create(context.reference())->getCurrentComponent().is()) continue;
        if (!has_menu(context, menus)) continue;
        wait_until_free(context);
        measure.seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        const fs::path own = process_folder(pipe);
        measure.processor = processor_time_of(own);
        std::this_thread::sleep_for(2s);
        measure.megabytes = megabytes_of(own);
        css::frame::Desktop::create(context.reference())->terminate();
    }
    process.ends_within(20s);
    return measure;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

struct Candidate {
    const char* name;
    fs::path folder;
    fs::path extensions;
    sal_Int32 menus;
    std::vector<double> seconds = {};
    std::vector<double> processor = {};
    std::vector<double> megabytes = {};
};

void run(const fs::path& folder) {
    const calc::VirtualDisplay display;
    fs::create_directories(folder / "none");
    Candidate candidates[] = {{"Calc alone", folder / "alone", folder / "none", 11},
                              {"Calc with the add-in", folder / "with", QOR_EXTENSIONS, 12}};
    for (Candidate& candidate : candidates) {
        fs::create_directories(candidate.folder);
        start(candidate.folder, candidate.extensions, candidate.menus);
    }
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        for (Candidate& candidate : candidates) {
            const Measure measure = start(candidate.folder, candidate.extensions, candidate.menus);
            candidate.seconds.push_back(measure.seconds);
            candidate.processor.push_back(measure.processor);
            candidate.megabytes.push_back(measure.megabytes);
        }
    }
    const double alone = median(candidates[0].seconds);
    fmt::print("{:<24}{:>12}{:>10}{:>14}{:>14}{:>14}\n", "", "median", "ratio", "best", "processor", "memory");
    for (const Candidate& candidate : candidates) {
        const double seconds = median(candidate.seconds);
        fmt::print("{:<24}{:>9.0f} ms{:>10.4f}{:>11.0f} ms{:>11.0f} ms{:>11.1f} MB\n", candidate.name, seconds * 1000,
                   seconds / alone, *std::ranges::min_element(candidate.seconds) * 1000,
                   median(candidate.processor) * 1000, median(candidate.megabytes));
    }
}

}  // namespace

int main() {
    const fs::path folder = fs::temp_directory_path() / ("qorplus-start-" + std::to_string(::getpid()));
    int exit_code = 0;
    try {
        run(folder);
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        exit_code = 1;
    }
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    return exit_code;
}
