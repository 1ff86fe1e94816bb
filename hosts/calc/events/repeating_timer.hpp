#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace qor::calc {

// Calls a function again and again, on a thread of its own, until it is changed, stopped or destroyed. The function
// must not wait for the thread that does that.
class RepeatingTimer {
  public:
    explicit RepeatingTimer(std::function<void()> tick);
    RepeatingTimer(const RepeatingTimer&) = delete;
    RepeatingTimer& operator=(const RepeatingTimer&) = delete;
    ~RepeatingTimer();

    // The time from one call to the next, counted from now; nothing for no calls. One that is what it was goes on.
    void set(std::optional<std::chrono::milliseconds> interval);

  private:
    void run();

    std::function<void()> tick_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<std::chrono::milliseconds> interval_;
    bool renewed_ = false;
    bool ended_ = false;
    std::thread thread_;
};

}  // namespace qor::calc
