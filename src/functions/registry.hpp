#pragma once

#include <span>
#include <string_view>

#include "functions/function.hpp"

namespace qor {

// All worksheet functions in the order in which they are registered with the host.
std::span<const Function> worksheet_functions();

// Members of CCom that are called like worksheet functions but that neither the registration nor a function wizard
// shows.
std::span<const Function> reserved_functions();

// The worksheet function of that name in any case, null if there is none.
const Function* find_function(std::u16string_view name);

}  // namespace qor
