#pragma once

#include <string>
#include <string_view>

#include "runtime/format_pattern.hpp"

namespace qor {

// A text by a pattern of texts.
std::u16string format_text(std::u16string_view text, Symbols pattern);

}  // namespace qor
