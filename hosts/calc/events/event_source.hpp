#pragma once

#include <memory>

#include "hosts/calc/events/host_events.hpp"
#include "hosts/calc/events/repeating_timer.hpp"
#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

class EventListener;
class EventQueue;

// Tells the handlers what happens in this process's Calc, from its making until its end or the office's.
class EventSource {
  public:
    EventSource(const Context& context, HostEvents handlers);
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;
    ~EventSource();

    // A timer that calls as the handlers are called. Ticks that fall due while they have to wait are one.
    std::unique_ptr<RepeatingTimer> make_timer(std::function<void()> tick) const;

  private:
    std::shared_ptr<EventQueue> queue_;
    std::shared_ptr<EventListener> listener_;
};

}  // namespace qor::calc
