#include "hosts/calc/office/process/office_process.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "hosts/calc/office/process/office_error.hpp"

namespace qor::calc {
namespace {

constexpr int restart_wanted = 81;  // LibreOffice's exit code for "start me again"
constexpr int most_starts = 4;
constexpr int keeper_channel = 3;

// The strings of an argument list or an environment as execve wants them.
std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

std::vector<std::string> environment_with(std::vector<std::string> additions) {
#ifdef QOR_SANITIZER
    // LibreOffice itself is not sanitized, so the sanitizer has to be in the process before our libraries. LibreOffice
    // does not free at its end, and handles signals itself.
    additions.emplace_back("LD_PRELOAD=" QOR_SANITIZER);
    additions.emplace_back("ASAN_OPTIONS=detect_leaks=0:handle_segv=0:log_path=" +
                           (std::filesystem::temp_directory_path() / "qorplus-sanitizer").string());
#endif
    const auto name_of = [](std::string_view entry) { return entry.substr(0, entry.find('=')); };
    std::vector<std::string> result = additions;
    for (char** entry = environ; *entry; ++entry) {
        const bool replaced = std::ranges::any_of(
            additions, [&](const std::string& addition) { return name_of(addition) == name_of(*entry); });
        if (!replaced) result.emplace_back(*entry);
    }
    return result;
}

// What runs in the keeper process, between the fork and its end.
class Keeper {
  public:
    Keeper(const OfficeStart& start, std::vector<std::string>& arguments, std::vector<std::string>& environment)
        : start_(start), arguments_(pointers(arguments)), environment_(pointers(environment)) {}

    [[noreturn]] void run(int channel) {
        detach(channel);
        for (int starts = 0; starts < most_starts; ++starts) {
            const pid_t office = start_office();
            if (office < 0 || !wants_restart(office)) break;
        }
        remove_leftovers();
        ::_exit(EXIT_SUCCESS);
    }

  private:
    void remove_leftovers() const {
        std::error_code ignored;
        for (const auto& leftover : start_.leftovers) std::filesystem::remove_all(leftover, ignored);
        for (const auto& lock : start_.locks) {
            std::ifstream file(lock);
            const std::string content{std::istreambuf_iterator<char>(file), {}};
            if (content.find(start_.lock_owner) != content.npos) std::filesystem::remove(lock, ignored);
        }
    }

    // Nothing of the terminal, the signals and the open files of the process that it came from stays with it:
    // who reads that process's output must not wait for the keeper.
    void detach(int channel) {
        ::setsid();
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(signal, SIG_IGN);
        sigset_t child_signal;
        sigemptyset(&child_signal);
        sigaddset(&child_signal, SIGCHLD);
        ::sigprocmask(SIG_SETMASK, &child_signal, nullptr);
        std::signal(SIGCHLD, SIG_DFL);
        if (channel != keeper_channel) ::dup2(channel, keeper_channel);
        const int nothing = ::open("/dev/null", O_RDWR);
        for (const int standard : {0, 1, 2}) ::dup2(nothing, standard);
        ::close_range(keeper_channel + 1, ~0U, 0);
        ::fcntl(keeper_channel, F_SETFD, FD_CLOEXEC);
        child_events_ = ::signalfd(-1, &child_signal, SFD_CLOEXEC);
    }

    pid_t start_office() {
        const pid_t office = ::fork();
        if (office == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            ::setpgid(0, 0);
            for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(signal, SIG_DFL);
            sigset_t no_signal;
            sigemptyset(&no_signal);
            ::sigprocmask(SIG_SETMASK, &no_signal, nullptr);
            ::execve(arguments_.front(), arguments_.data(), environment_.data());
            ::_exit(127);
        }
        if (office > 0) ::setpgid(office, office);
        return office;
    }

    // Waits until LibreOffice ends or is no longer wanted, which ends it.
    bool wants_restart(pid_t office) const {
        std::array<pollfd, 2> events{pollfd{keeper_channel, POLLIN, 0}, pollfd{child_events_, POLLIN, 0}};
        for (;;) {
            if (::poll(events.data(), events.size(), -1) < 0 && errno != EINTR) return false;
            if (events[0].revents != 0) {
                ::kill(-office, SIGKILL);
                ::waitpid(office, nullptr, 0);
                return false;
            }
            signalfd_siginfo event;
            if (events[1].revents == 0 || ::read(child_events_, &event, sizeof event) < 0) continue;
            int status = 0;
            if (::waitpid(office, &status, WNOHANG) != office) continue;
            ::kill(-office, SIGKILL);  // whatever it started and left
            return WIFEXITED(status) && WEXITSTATUS(status) == restart_wanted;
        }
    }

    const OfficeStart& start_;
    std::vector<char*> arguments_;
    std::vector<char*> environment_;
    int child_events_ = -1;
};

}  // namespace

OfficeProcess::OfficeProcess(const OfficeStart& start) {
    std::vector<std::string> arguments{start.program / "soffice.bin"};
    arguments.insert(arguments.end(), start.arguments.begin(), start.arguments.end());
    std::vector<std::string> environment = environment_with(start.environment);
    Keeper keeper(start, arguments, environment);

    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0) {
        channel_ = FileDescriptor(ends[0]);
        const FileDescriptor keepers_end(ends[1]);
        keeper_ = ::fork();
        if (keeper_ == 0) keeper.run(keepers_end.number());
    }
    if (keeper_ < 0) throw OfficeError(std::string("no process can be started: ") + std::strerror(errno));
}

OfficeProcess::~OfficeProcess() {
    channel_ = FileDescriptor(-1);
    while (::waitpid(keeper_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

bool OfficeProcess::ends_within(std::chrono::milliseconds limit) const {
    pollfd event{channel_.number(), POLLIN, 0};
    return ::poll(&event, 1, static_cast<int>(limit.count())) > 0;
}

}  // namespace qor::calc
