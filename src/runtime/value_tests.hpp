#pragma once

#include "automation/variant.hpp"

namespace qor {

// A date, or a text that parse_date reads.
bool is_date(const Variant& value);

// A number, a boolean, Empty, or a text that parse_number reads as a number that is in range. A date is none.
bool is_numeric(const Variant& value);

}  // namespace qor
