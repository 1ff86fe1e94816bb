#pragma once

#include <string>
#include <string_view>

#include "functions/function.hpp"

namespace qor::calc {

// The category's name as Calc's function wizard knows it, in English whatever the user's language.
std::u16string_view calc_category(Category category);

// What the wizard says of an argument: its kind, and what stands for it when it is left out.
std::u16string parameter_description(const Parameter& parameter);

}  // namespace qor::calc
