#include "hosts/calc/events/repeating_timer.hpp"

namespace qor::calc {

RepeatingTimer::RepeatingTimer(std::function<void()> tick) : tick_(std::move(tick)), thread_([this] { run(); }) {}

RepeatingTimer::~RepeatingTimer() {
    {
        const std::scoped_lock lock(mutex_);
        ended_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void RepeatingTimer::set(std::optional<std::chrono::milliseconds> interval) {
    {
        const std::scoped_lock lock(mutex_);
        if (interval == interval_) return;
        interval_ = interval;
        renewed_ = true;
    }
    changed_.notify_one();
}

void RepeatingTimer::run() {
    std::unique_lock lock(mutex_);
    const auto is_changed = [this] { return ended_ || renewed_; };
    while (!ended_) {
        renewed_ = false;
        if (!interval_) {
            changed_.wait(lock, is_changed);
        } else if (!changed_.wait_for(lock, *interval_, is_changed)) {
            lock.unlock();
            tick_();
            lock.lock();
        }
    }
}

}  // namespace qor::calc
