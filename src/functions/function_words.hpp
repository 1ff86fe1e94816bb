#pragma once

#include <string_view>

#include "functions/function.hpp"

// How users read of worksheet functions, wherever they do.
namespace qor {

std::u16string_view category_name(Category category);

std::u16string_view kind_name(ValueKind kind);
// What a value of the kind is, as a sentence about an argument begins.
std::u16string_view kind_phrase(ValueKind kind);

}  // namespace qor
