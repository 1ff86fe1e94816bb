#pragma once

#include <cmath>

#include "automation/error.hpp"

namespace qor {

// A double whose every operation is checked as the run time checks it: it raises 11 for a division by zero, 6 for an
// overflow and for 0 / 0, and 5 for an operation that has no result.
class Checked {
  public:
    constexpr Checked(double value = 0) noexcept : value_(value) {}

    constexpr double value() const noexcept { return value_; }

    friend Checked operator-(Checked operand) { return -operand.value_; }
    friend Checked operator+(Checked left, Checked right) { return result(left.value_ + right.value_, left, right); }
    friend Checked operator-(Checked left, Checked right) { return result(left.value_ - right.value_, left, right); }
    friend Checked operator*(Checked left, Checked right) { return result(left.value_ * right.value_, left, right); }
    friend Checked operator/(Checked left, Checked right) {
        if (right.value_ == 0) [[unlikely]] {
            throw Error(left.value_ == 0 ? ErrorNumber::overflow : ErrorNumber::division_by_zero);
        }
        return result(left.value_ / right.value_, left, right);
    }

    friend Checked power(Checked base, Checked exponent) {
        if (base.value_ == 0 && exponent.value_ < 0) [[unlikely]]
            throw Error(ErrorNumber::invalid_call);
        return result(std::pow(base.value_, exponent.value_), base, exponent);
    }
    friend Checked natural_logarithm(Checked operand) {
        if (operand.value_ <= 0) [[unlikely]]
            throw Error(ErrorNumber::invalid_call);
        return result(std::log(operand.value_), operand, operand);
    }

  private:
    static Checked result(double value, Checked left, Checked right) {
        if (!std::isfinite(value)) [[unlikely]]
            raise_fault(value, left.value_, right.value_);
        return value;
    }

    // An operand that is infinite or no number already may be handed on, as the processor does it.
    static void raise_fault(double value, double left, double right) {
        if (std::isnan(value) && !std::isnan(left) && !std::isnan(right)) throw Error(ErrorNumber::invalid_call);
        if (std::isinf(value) && std::isfinite(left) && std::isfinite(right)) throw Error(ErrorNumber::overflow);
    }

    double value_;
};

}  // namespace qor
