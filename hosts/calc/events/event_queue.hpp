#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// What is to be told once the host is free: no command runs and no dialog is open. Used on the main thread only; the
// queue must be held by a shared pointer.
class EventQueue : public std::enable_shared_from_this<EventQueue> {
  public:
    explicit EventQueue(Context context) : context_(std::move(context)) {}

    // Tells it when the main thread is next free, or later. What waits under the same key is told no more.
    void put(std::u16string key, std::function<void()> event);
    // Tells it now if the host is free, and never if not.
    void tell_now(const std::function<void()>& event);
    // Something may have ended that kept events waiting.
    void try_again();
    // Nothing is told from now on.
    void close();
    // May be asked on any thread.
    bool is_closed() const noexcept { return closed_; }

    const Context& context() const noexcept { return context_; }

  private:
    struct Waiting {
        std::u16string key;
        std::function<void()> event;
    };

    bool is_host_free() const;
    void schedule();
    void tell_waiting();

    Context context_;
    std::vector<Waiting> waiting_;
    bool scheduled_ = false;
    std::atomic<bool> closed_ = false;
};

}  // namespace qor::calc
