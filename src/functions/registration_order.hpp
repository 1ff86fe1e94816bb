#pragma once

#include <span>
#include <string_view>

#include "functions/function.hpp"

namespace qor {

struct RegistrationRun {
    Category category;
    std::span<const std::u16string_view> names;
};

// All the names that the host's function dialog is to show, in the fixed order in which they are registered. CELLINFO,
// EXCELUSERNAME, WRKBKINFO and WRKSHTINFO among them are answered by the companion alone.
std::span<const RegistrationRun> registration_runs() noexcept;

}  // namespace qor
