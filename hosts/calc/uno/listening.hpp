#pragma once

#include <functional>
#include <type_traits>

#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

// While it lives, an object of the office calls a listener. One that is gone has let go of its listeners.
class Listening {
  public:
    // The office's functions that add and remove a listener of this kind.
    template <class Broadcaster, class Base, class Listener>
    Listening(const Ref<Broadcaster>& broadcaster, void (Base::*add)(const css::uno::Reference<Listener>&),
              void (Base::*remove)(const css::uno::Reference<Listener>&),
              const std::type_identity_t<css::uno::Reference<Listener>>& listener)
        : end_([broadcaster, remove, listener] { ((*broadcaster.operator->()).*remove)(listener); }) {
        ((*broadcaster.operator->()).*add)(listener);
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening() {
        attempt([&] { guarded(end_); });
    }

  private:
    std::function<void()> end_;
};

}  // namespace qor::calc
