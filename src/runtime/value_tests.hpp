#pragma once

#include <string_view>

#include "automation/variant.hpp"

namespace qor {

// The name of the value's kind as the run time gives it: "Double", "String", "Empty"; an array is "Variant()".
std::u16string_view type_name(const Variant& value);

// A date, or a text that parse_date reads.
bool is_date(const Variant& value);

// A number, a boolean, Empty, or a text that parse_number reads as a number that is in range. A date is none.
bool is_numeric(const Variant& value);

}  // namespace qor
