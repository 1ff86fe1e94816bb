#pragma once

#include <string_view>

namespace qor {

// The text matches the pattern, by code units: ? is any one, * any run, # a digit, [abc] one of a set, [a-z] one of a
// range, [!abc] one of none, [] nothing at all; anything else stands for itself. A hyphen at either end of a set is a
// hyphen. Raises 93 for a set that is not closed and for a range that runs backwards.
bool like(std::u16string_view text, std::u16string_view pattern);

}  // namespace qor
