#pragma once

#include <cstdint>
#include <string>

#include "automation/variant.hpp"

namespace qor {

// Conversion of a host value into one kind, by the run time's rules. They raise 13 (no such value), 6 (out of range),
// 94 (Null), 449 (an argument that was left out) and 424 or 91 (an object that is none).
bool to_boolean(const Variant& value);
std::int16_t to_integer(const Variant& value);  // rounds half to even, as to_long does
std::int32_t to_long(const Variant& value);
float to_single(const Variant& value);
double to_double(const Variant& value);
Currency to_currency(const Variant& value);
Date to_date(const Variant& value);
std::u16string to_text(const Variant& value);

}  // namespace qor
