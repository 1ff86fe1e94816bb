#pragma once

#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/RuntimeException.hpp>
#include <com/sun/star/uno/XInterface.hpp>
#include <cstdint>

#include "automation/error.hpp"

namespace css = com::sun::star;

namespace qor::calc {

// How many calls this thread has made through Ref since it started: the measure of a tool's cost that does not depend
// on the machine. The office also calls us on threads of its own.
inline thread_local std::uint64_t host_calls = 0;
// This thread's call of this number fails before it reaches the office, as any may: tests set it. 0: none.
inline thread_local std::uint64_t failing_host_call = 0;

// A reference to an interface of the office. A call through an empty one raises 1004: the office answers null where it
// refuses. All calls into the office go through it; the office's own Reference stays in its signatures and factories.
template <class Interface>
class Ref {
  public:
    Ref() = default;
    Ref(css::uno::Reference<Interface> reference) : reference_(std::move(reference)) {}
    // The interface of another object; empty when the object does not have it.
    template <class Other>
    explicit Ref(const Ref<Other>& other) : reference_(other.reference(), css::uno::UNO_QUERY) {}
    explicit Ref(const css::uno::Any& value) : reference_(value, css::uno::UNO_QUERY) {}

    Interface* operator->() const {
        if (!reference_.is()) throw Error(ErrorNumber::host_refused);
        if (++host_calls == failing_host_call) throw css::uno::RuntimeException("The call fails for a test.");
        return reference_.get();
    }
    explicit operator bool() const noexcept { return reference_.is(); }
    bool operator==(const Ref& other) const { return reference_ == other.reference_; }

    const css::uno::Reference<Interface>& reference() const noexcept { return reference_; }

  private:
    css::uno::Reference<Interface> reference_;
};

template <class Interface>
Ref(css::uno::Reference<Interface>) -> Ref<Interface>;

}  // namespace qor::calc
