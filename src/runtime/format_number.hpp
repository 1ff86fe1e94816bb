#pragma once

#include <string>

#include "automation/variant.hpp"
#include "runtime/format_pattern.hpp"

namespace qor {

// A number, or Null, by a pattern of numbers.
std::u16string format_number(const Variant& number, Symbols pattern);

}  // namespace qor
