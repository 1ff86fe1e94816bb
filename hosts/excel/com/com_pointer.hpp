#pragma once

#include <utility>

#include "hosts/excel/com/ole.hpp"

namespace qor::excel {

// A counted reference to an interface.
template <class Interface>
class ComPointer {
  public:
    ComPointer() noexcept = default;
    explicit ComPointer(Interface* target) noexcept : target_(target) {
        if (target_) target_->AddRef();
    }
    // Takes over a count that the caller has.
    static ComPointer adopt(Interface* target) noexcept {
        ComPointer result;
        result.target_ = target;
        return result;
    }
    ComPointer(const ComPointer& other) noexcept : ComPointer(other.target_) {}
    ComPointer(ComPointer&& other) noexcept : target_(std::exchange(other.target_, nullptr)) {}
    ComPointer& operator=(ComPointer other) noexcept {
        std::swap(target_, other.target_);
        return *this;
    }
    ~ComPointer() {
        if (target_) target_->Release();
    }

    explicit operator bool() const noexcept { return target_ != nullptr; }
    Interface* get() const noexcept { return target_; }
    Interface* operator->() const noexcept { return target_; }
    Interface* detach() noexcept { return std::exchange(target_, nullptr); }
    // Where a call puts what it gives, with a count for this.
    Interface** put() noexcept {
        *this = ComPointer();
        return &target_;
    }
    void** put_void() noexcept { return reinterpret_cast<void**>(put()); }

  private:
    Interface* target_ = nullptr;
};

}  // namespace qor::excel
