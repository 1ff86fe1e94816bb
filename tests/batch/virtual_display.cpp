#include "tests/batch/virtual_display.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>

#include "hosts/calc/office/process/office_error.hpp"
#include "platform/posix/file_descriptor.hpp"

namespace qor::calc {
namespace {

constexpr int number_channel = 3;  // where the server tells the number of its display
constexpr int longest_start = 30'000;

template <class... Arguments>
[[noreturn]] void run_program(const char* program, Arguments... arguments) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {0, 1, 2}) ::dup2(nothing, standard);
    ::close_range(number_channel + 1, ~0U, 0);
    ::execlp(program, program, arguments..., nullptr);
    ::_exit(127);
}

void end(pid_t process) {
    if (process < 0) return;
    ::kill(process, SIGTERM);
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

// The display's number, which comes when the server is ready.
std::string read_number(int channel) {
    std::string text;
    pollfd event{channel, POLLIN, 0};
    while (::poll(&event, 1, longest_start) > 0 && (text.empty() || text.back() != '\n')) {
        std::array<char, 16> part{};
        const ssize_t length = ::read(channel, part.data(), part.size());
        if (length <= 0) break;
        text.append(part.data(), static_cast<std::size_t>(length));
    }
    if (text.empty() || text.back() != '\n') throw OfficeError("Xvfb does not start");
    text.pop_back();
    return text;
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
    start_server();
    window_manager_ = ::fork();
    if (window_manager_ == 0) run_program("openbox");
}

VirtualDisplay::~VirtualDisplay() {
    end(window_manager_);
    end(server_);
}

void VirtualDisplay::start_server() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw OfficeError("no pipe can be made");
    const FileDescriptor reader(ends[0]);
    {
        const FileDescriptor writer(ends[1]);
        server_ = ::fork();
        if (server_ == 0) {
            ::dup2(writer.number(), number_channel);
            run_program("Xvfb", "-displayfd", "3", "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset");
        }
    }
    ::setenv("DISPLAY", (":" + read_number(reader.number())).c_str(), 1);
    ::unsetenv("WAYLAND_DISPLAY");
}

}  // namespace qor::calc
