#pragma once

#include <span>
#include <string_view>

#include "functions/function.hpp"

namespace qor {

struct RegistrationRun {
    Category category;
    std::span<const std::u16string_view> names;
};

// All the names that the host's function dialog shows, in the fixed order in which they are registered.
std::span<const RegistrationRun> registration_runs() noexcept;

}  // namespace qor
