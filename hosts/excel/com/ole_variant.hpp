#pragma once

#include <utility>

#include "automation/variant.hpp"
#include "hosts/excel/com/ole.hpp"

namespace qor::excel {

// Automation's own variant with what it holds.
class OleVariant {
  public:
    OleVariant() noexcept { VariantInit(&value_); }
    OleVariant(OleVariant&& other) noexcept : OleVariant() { std::swap(value_, other.value_); }
    OleVariant& operator=(OleVariant other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~OleVariant() { VariantClear(&value_); }

    VARIANT& get() noexcept { return value_; }
    const VARIANT& get() const noexcept { return value_; }
    VARIANT detach() noexcept {
        const VARIANT held = value_;
        VariantInit(&value_);
        return held;
    }

  private:
    VARIANT value_;
};

// What a caller passes, references followed. A whole number of a kind that the run time does not have comes as the
// next wider kind it has; what is neither a value nor an object raises 13.
Variant from_ole(const VARIANT& value);

// An object of the host crosses as itself, one of the add-in as one that answers the host.
OleVariant to_ole(const Variant& value);

// Puts a value into the variable that a caller passed by reference, in the variable's own type. Raises 13 or 6 where
// it does not go into it; what the caller passed by value is left alone.
void write_back(const VARIANT& variable, const Variant& value);

// Arrays of one and two dimensions. One of more raises 9, since nothing here takes it.
Array from_safe_array(SAFEARRAY& array);
SAFEARRAY* to_safe_array(const Array& array);

}  // namespace qor::excel
