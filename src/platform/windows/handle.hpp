#pragma once

#include <windows.h>

#include <utility>

namespace qor {

// Owns an open file of the system, or none.
class Handle {
  public:
    explicit Handle(HANDLE value) : value_(value) {}
    Handle(Handle&& other) noexcept : value_(std::exchange(other.value_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~Handle() {
        if (*this) CloseHandle(value_);
    }

    explicit operator bool() const { return value_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return value_; }

  private:
    HANDLE value_;
};

}  // namespace qor
