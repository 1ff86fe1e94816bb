#pragma once

#include <string>
#include <string_view>

#include "functions/function.hpp"

namespace qor::calc {

// The category's name as Calc's function wizard knows it, in English whatever the user's language.
std::u16string_view calc_category(Category category);

// The name by which a formula calls the function: its own, or, where Calc has a function of that name, the name with
// the prefix of add-in functions. A formula that means Calc's function goes on meaning it.
std::u16string display_name(const Function& function);

// What the wizard says of an argument: its kind, and what stands for it when it is left out.
std::u16string parameter_description(const Parameter& parameter);

}  // namespace qor::calc
