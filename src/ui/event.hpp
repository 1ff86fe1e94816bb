#pragma once

#include <functional>
#include <utility>

namespace qor {

// Something that may happen, with at most one handler. Raising it without one does nothing.
template <class... Args>
class Event {
  public:
    template <class Handler>
    Event& operator=(Handler handler) {
        handler_ = std::move(handler);
        return *this;
    }

    void operator()(Args... arguments) const {
        if (handler_) handler_(arguments...);
    }

  private:
    std::function<void(Args...)> handler_;
};

}  // namespace qor
