#include "hosts/calc/office/private_office.hpp"

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <csignal>
#include <cstdlib>
#include <rtl/bootstrap.hxx>

#include "hosts/calc/office/office_pipe.hpp"
#include "hosts/calc/office/office_socket.hpp"
#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/office/process/start_variable.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/file_address.hpp"
#include "platform/files.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace uno = css::uno;
using namespace std::chrono_literals;

constexpr auto longest_start = 90s;
constexpr auto usual_end = 500ms;  // it was seen to stall for seconds; then it is ended

rtl::OUString text(std::string_view utf8) {
    return to_uno(from_utf8(utf8));
}

std::string utf8(const rtl::OUString& text) {
    return to_utf8(view_of(text));
}

std::filesystem::path make_private_folder() {
    std::string name = std::filesystem::temp_directory_path() / "qorplus-XXXXXX";
    if (!::mkdtemp(name.data())) throw OfficeError("no temporary folder can be made as " + name);
    return name;
}

OfficeStart start_options(const std::filesystem::path& program, const std::filesystem::path& folder,
                          std::span<const std::filesystem::path> component_lists, Profile profile,
                          const OfficeFiles& files, OfficeScreen screen) {
    const std::string pipe_name = folder.filename();
    OfficeStart start;
    start.program = program;
    start.leftovers = {folder, office_socket(pipe_name)};
    start.arguments = {"--norestore", "--nologo", "--nodefault", "--nofirststartwizard",
                       "--accept=pipe,name=" + pipe_name + ";urp;"};
    if (screen == OfficeScreen::none) start.arguments.emplace_back("--headless");
    for (const auto& file : files.opened)
        start.locks.push_back(file.parent_path() / (".~lock." + file.filename().string() + "#"));
    for (const auto& file : files.written) start.leftovers.push_back(file.parent_path() / ("." + pipe_name));
    // Temporary files of a LibreOffice that is killed go with the rest.
    const std::string drawn_by = screen == OfficeScreen::none ? "svp" : "gtk3";
    start.environment = {"SAL_USE_VCLPLUGIN=" + drawn_by, "TMPDIR=" + folder.string()};
    if (profile == Profile::fresh) {
        const std::string profile_url = address_in_variable(folder / "profile");
        start.lock_owner = profile_url;
        start.leftovers.push_back(profile_socket(text(profile_url)));
        start.arguments.push_back("-env:UserInstallation=" + profile_url);
        // The outcome of a run must not depend on the user's language; file names are UTF-8 whatever it is.
        start.environment.emplace_back("LC_ALL=C.UTF-8");
    }
    if (!component_lists.empty()) {
        std::string services = "-env:URE_MORE_SERVICES=";
        for (const auto& list : component_lists) services += address_in_variable(list) + " ";
        start.arguments.push_back(services + "<" + address_in_variable(program / "services") + ">*");
    }
    return start;
}

}  // namespace

rtl::OUString user_profile_url(const std::filesystem::path& program) {
    const rtl::Bootstrap settings(to_uno(address_of_path(path_text(program / "bootstraprc"))));
    rtl::OUString url;
    settings.getFrom("UserInstallation", url);
    return url;
}

PrivateOffice::PrivateOffice(const std::filesystem::path& program,
                             std::span<const std::filesystem::path> component_lists, Profile profile,
                             const OfficeFiles& files, OfficeScreen screen) {
    if (profile == Profile::of_user && is_listening(profile_socket(user_profile_url(program)))) {
        throw OfficeError("LibreOffice is running; close LibreOffice first");
    }
    // What is sent to an office that has ended must fail by itself, not end this process.
    std::signal(SIGPIPE, SIG_IGN);
    folder_ = make_private_folder();
    process_.emplace(start_options(program, folder_, component_lists, profile, files, screen));
    connect(program, folder_.filename());
}

PrivateOffice::~PrivateOffice() {
    end_within(usual_end);
}

void PrivateOffice::connect(const std::filesystem::path& program, const std::string& pipe_name) {
    const auto latest = std::chrono::steady_clock::now() + longest_start;
    while (!context_) {
        if (process_->ends_within(10ms)) throw OfficeError("LibreOffice ended while it was starting");
        if (std::chrono::steady_clock::now() > latest) throw OfficeError("LibreOffice did not answer in 90 seconds");
        context_ = office_at_pipe(program, pipe_name);
    }
}

void PrivateOffice::work(const std::function<void()>& task) {
    try {
        task();
    } catch (const css::lang::DisposedException&) {
        throw OfficeError("LibreOffice ended unexpectedly; what was not saved before is lost");
    } catch (const uno::Exception& refusal) {
        throw OfficeError("LibreOffice refused: " + utf8(refusal.Message));
    }
}

bool PrivateOffice::end_within(std::chrono::milliseconds limit) {
    try {
        const Ref desktop{css::frame::Desktop::create(context_.reference())};
        desktop->terminate();
    } catch (const uno::Exception&) {
        // Gone already: the bridge breaks as often before the answer as after it.
    }
    return process_->ends_within(limit);
}

}  // namespace qor::calc
