#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "automation/member_name.hpp"

namespace qor {

class Variant;
struct NamedArgument;

enum class Access : std::uint8_t { get = 1, put = 2, call = 4 };

// The arguments of one access. An omitted positional argument is a Missing value. For a put the value comes last.
// They lie in place, so that a by-reference parameter can write back.
struct Arguments {
    std::span<Variant> positional;
    std::span<NamedArgument> named;
};

// Anything that answers members by name. Counted; a new one starts with a count of 0 and is taken up by an Object.
class Dispatch {
  public:
    Dispatch() = default;
    Dispatch(const Dispatch&) = delete;
    Dispatch& operator=(const Dispatch&) = delete;
    virtual ~Dispatch() = default;

    // Raises 438 for a member that is not there, and whatever the member itself raises.
    virtual Variant invoke(const MemberName& name, Access access, Arguments arguments) = 0;
    // What the object stands for where a value is asked for, such as a cell's. Raises 438 if it stands for none.
    virtual Variant default_value();
    // The members of a collection, in the host's order, as they stand at the call. Raises 438 if it is none.
    virtual std::vector<Variant> items();
    // Whether both stand for the same thing in the host, though they may be two objects.
    virtual bool is_same(const Dispatch& other) const noexcept { return this == &other; }
    virtual std::u16string_view type_name() const noexcept = 0;

    void retain() noexcept { count_.fetch_add(1, std::memory_order_relaxed); }
    void release() noexcept {
        if (count_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
    }

  private:
    std::atomic<long> count_{0};
};

// A counted, late-bound reference. An empty one is the hosts' Nothing: every access to it raises 91.
class Object {
  public:
    Object() noexcept = default;
    explicit Object(Dispatch* target) noexcept : target_(target) {
        if (target_) target_->retain();
    }
    Object(const Object& other) noexcept : Object(other.target_) {}
    Object(Object&& other) noexcept : target_(std::exchange(other.target_, nullptr)) {}
    Object& operator=(Object other) noexcept {
        std::swap(target_, other.target_);
        return *this;
    }
    ~Object() {
        if (target_) target_->release();
    }

    explicit operator bool() const noexcept { return target_ != nullptr; }
    Dispatch* target() const noexcept { return target_; }
    bool is(const Object& other) const noexcept {
        return target_ == other.target_ || (target_ && other.target_ && target_->is_same(*other.target_));
    }

    // Positional arguments first, then named ones: range.call(Copy, named(Destination, cell)).
    template <class... Args>
    Variant get(const MemberName& name, Args&&... arguments) const;
    template <class... Args>
    void put(const MemberName& name, Args&&... arguments_and_value) const;
    template <class... Args>
    Variant call(const MemberName& name, Args&&... arguments) const;

    Variant invoke(const MemberName& name, Access access, Arguments arguments) const;
    std::vector<Variant> items() const;

  private:
    Dispatch& required() const;

    Dispatch* target_ = nullptr;
};

template <class T, class... Args>
Object make_object(Args&&... arguments) {
    return Object(new T(std::forward<Args>(arguments)...));
}

}  // namespace qor

#include "automation/variant.hpp"
