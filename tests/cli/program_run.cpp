#include "tests/cli/program_run.hpp"

#include <doctest/doctest.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <thread>

#include "tests/support/temporary_folder.hpp"

namespace qor::cli {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

std::string read_all(int descriptor) {
    std::string text;
    std::array<char, 4096> part;
    for (ssize_t count = 0; (count = ::read(descriptor, part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(count));
    return text;
}

}  // namespace

ProgramRun::ProgramRun(std::vector<std::string> command, const fs::path& current_folder,
                       std::vector<std::string> environment) {
    static int runs = 0;
    mark_ = fmt::format("QORPLUS_TEST_RUN={}-{}", ::getpid(), ++runs);
    environment.push_back(mark_);
    const auto given = environment;
    for (char** entry = environ; *entry; ++entry) {
        const std::string_view own = *entry;
        const auto name = own.substr(0, own.find('=') + 1);
        const bool replaced = std::ranges::any_of(given, [&](const auto& other) { return other.starts_with(name); });
        if (!replaced) environment.emplace_back(own);
    }
    const std::vector<char*> argument_list = pointers(command);
    const std::vector<char*> environment_list = pointers(environment);
    std::array<int, 2> output{};
    std::array<int, 2> errors{};
    REQUIRE(::pipe2(output.data(), O_CLOEXEC) == 0);
    REQUIRE(::pipe2(errors.data(), O_CLOEXEC) == 0);
    id_ = ::fork();
    REQUIRE(id_ >= 0);
    if (id_ == 0) {
        ::dup2(output[1], STDOUT_FILENO);
        ::dup2(errors[1], STDERR_FILENO);
        if (::chdir(current_folder.c_str()) == 0)
            ::execve(argument_list.front(), argument_list.data(), environment_list.data());
        ::_exit(127);
    }
    ::close(output[1]);
    ::close(errors[1]);
    output_ = output[0];
    errors_ = errors[0];
}

ProgramRun::~ProgramRun() {
    if (id_ > 0) {
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
    }
    ::close(output_);
    ::close(errors_);
}

Outcome ProgramRun::wait() {
    Outcome outcome;
    outcome.output = read_all(output_);
    outcome.errors = read_all(errors_);
    int status = 0;
    ::waitpid(id_, &status, 0);
    id_ = -1;
    outcome.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return outcome;
}

std::vector<pid_t> ProgramRun::processes(const std::string& name) const {
    std::vector<pid_t> found;
    for (const auto& entry : fs::directory_iterator("/proc")) {
        const std::string number = entry.path().filename();
        if (!std::ranges::all_of(number, [](unsigned char c) { return std::isdigit(c); })) continue;
        if (!name.empty() && test::content_of(entry.path() / "comm") != name + "\n") continue;
        const std::string environment = test::content_of(entry.path() / "environ");  // empty for one that has ended
        if (environment.find(mark_ + '\0') != environment.npos) found.push_back(std::stoi(number));
    }
    return found;
}

bool ProgramRun::leaves_nothing() const {
    for (int attempts = 0; attempts < 100; ++attempts) {
        if (processes().empty()) return true;
        std::this_thread::sleep_for(50ms);
    }
    return false;
}

std::vector<std::string> qorplus(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), QOR_PROGRAM);
    return arguments;
}

Outcome run_program(std::vector<std::string> arguments, const fs::path& current_folder,
                    std::vector<std::string> environment) {
    return ProgramRun(qorplus(std::move(arguments)), current_folder, std::move(environment)).wait();
}

void check_refusal(const Outcome& outcome, int exit_code, const std::string& text) {
    CAPTURE(outcome.errors);
    CAPTURE(text);
    CHECK(outcome.exit_code == exit_code);
    CHECK(outcome.output.empty());
    CHECK(outcome.errors.starts_with("qorplus: "));
    CHECK(std::ranges::count(outcome.errors, '\n') == 1);
    CHECK(outcome.errors.ends_with('\n'));
    CHECK(outcome.errors.find(text) != outcome.errors.npos);
}

}  // namespace qor::cli
