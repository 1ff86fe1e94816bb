#pragma once

#include <string>

#include "automation/object.hpp"

namespace qor {

// Makes every worksheet function known to the host's function dialog, in the fixed order. At the first one that the
// host refuses it stops and raises the host's number and description, with the description, a carriage return and
// "SetupFunc" as the source.
void setup_functions(const Object& application, const std::u16string& help_file);

}  // namespace qor
