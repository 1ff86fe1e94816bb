#include "hosts/calc/events/event_queue.hpp"

#include "hosts/calc/events/open_dialog.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"
#include "hosts/calc/uno/running_command.hpp"

namespace qor::calc {
namespace {

// A handler is a command of its own: it may open dialogs, and nothing else is told meanwhile.
void tell(const std::function<void()>& event) {
    const RunningCommand command;
    attempt([&] { guarded(event); });
}

}  // namespace

bool EventQueue::is_host_free() const {
    return !closed_ && !RunningCommand::any() && !is_dialog_open(context_);
}

void EventQueue::put(std::u16string key, std::function<void()> event) {
    std::erase_if(waiting_, [&](const Waiting& one) { return one.key == key; });
    waiting_.push_back({std::move(key), std::move(event)});
    schedule();
}

void EventQueue::tell_now(const std::function<void()>& event) {
    if (on_main_thread() && is_host_free()) tell(event);
}

void EventQueue::try_again() {
    if (!waiting_.empty()) schedule();
}

void EventQueue::close() {
    closed_ = true;
    waiting_.clear();
}

void EventQueue::schedule() {
    if (closed_ || std::exchange(scheduled_, true)) return;
    post_to_main_thread(context_, [weak = weak_from_this()] {
        if (const std::shared_ptr<EventQueue> queue = weak.lock()) queue->tell_waiting();
    });
}

void EventQueue::tell_waiting() {
    scheduled_ = false;
    if (!is_host_free()) return;  // who ends what keeps the host busy tries again
    for (const Waiting& one : std::exchange(waiting_, {})) {
        if (!closed_) tell(one.event);
    }
}

}  // namespace qor::calc
