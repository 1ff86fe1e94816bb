#include "hosts/calc/events/event_source.hpp"

#include "hosts/calc/events/event_listener.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"

namespace qor::calc {

EventSource::EventSource(const Context& context, HostEvents handlers)
    : queue_(std::make_shared<EventQueue>(context)),
      listener_(std::make_shared<EventListener>(queue_, std::move(handlers))) {
    guarded([&] { listener_->begin(); });
}

EventSource::~EventSource() {
    listener_->end();
}

std::unique_ptr<RepeatingTimer> EventSource::make_timer(std::function<void()> tick) const {
    static std::int32_t last_number = 0;
    const std::string number = std::to_string(++last_number);
    const std::u16string key = u"timer " + std::u16string(number.begin(), number.end());
    return std::make_unique<RepeatingTimer>([weak = std::weak_ptr(queue_), context = queue_->context(), key, tick] {
        const std::shared_ptr<EventQueue> open = weak.lock();
        if (!open || open->is_closed()) return;
        post_to_main_thread(context, [weak, key, tick] {
            if (const std::shared_ptr<EventQueue> queue = weak.lock()) queue->put(key, tick);
        });
    });
}

}  // namespace qor::calc
