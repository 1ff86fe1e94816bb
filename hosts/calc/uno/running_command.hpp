#pragma once

#include <functional>

namespace qor::calc {

// While one lives, a command of the add-in runs: no event of the host and no click begins another one. Commands run on
// the office's main thread, and so does everything here.
class RunningCommand {
  public:
    RunningCommand() noexcept { ++running_; }
    RunningCommand(const RunningCommand&) = delete;
    RunningCommand& operator=(const RunningCommand&) = delete;
    ~RunningCommand();

    static bool any() noexcept { return running_ != 0; }

    // Called at the end of each outermost command; an empty function ends that. There is one listener.
    static void at_end(std::function<void()> listener);

  private:
    static int running_;
};

}  // namespace qor::calc
