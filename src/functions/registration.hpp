#pragma once

#include <span>
#include <string>
#include <string_view>

#include "automation/object.hpp"
#include "functions/function.hpp"

namespace qor {

// A function as the host's function dialog shows it.
struct RegisteredFunction {
    std::u16string_view name;
    std::u16string_view description;
    Category category;
    std::int32_t help_id;
};

// All functions of the dialog in the fixed order: the worksheet functions and, among them, those that the companion
// answers by itself.
std::span<const RegisteredFunction> registered_functions();

// Makes every one of them known to the host's function dialog. At the first one that the host refuses it stops and
// raises the host's number and description, with the description, a carriage return and "SetupFunc" as the source.
void setup_functions(const Object& application, const std::u16string& help_file);

}  // namespace qor
