#pragma once

#include <doctest/doctest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>

namespace qor::test {

// A forked process that runs `work`, a function with an exit code, and nothing else of the test program.
class ChildProcess {
  public:
    template <typename Work>
    explicit ChildProcess(Work work) : id_(::fork()) {
        if (id_ == 0) ::_exit(work());
        REQUIRE(id_ > 0);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() {
        if (id_ > 0) {
            kill(SIGKILL);
            wait();
        }
    }

    void kill(int signal) const { ::kill(id_, signal); }

    // The exit code, or minus the signal that ended it.
    int wait() {
        int status = 0;
        REQUIRE(::waitpid(std::exchange(id_, 0), &status, 0) > 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

  private:
    pid_t id_;
};

}  // namespace qor::test
