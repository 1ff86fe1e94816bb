#pragma once

#include <string_view>
#include <vector>

#include "automation/variant.hpp"

namespace qor {

// What a macro does: it calls a member of the automation object, with these arguments behind the application.
struct Macro {
    std::u16string_view name;
    std::u16string_view member;
    bool takes_application = true;
    std::vector<Variant> arguments = {};
};

// The macro of that name: one of the companion's own, else the command that is called as the macro is.
Macro find_macro(std::u16string_view name);

}  // namespace qor
