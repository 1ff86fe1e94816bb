#pragma once

#include <nlohmann/json.hpp>

#include "ui/form.hpp"

namespace qor {

// What a user sees of a form and of its controls, as the transcript tells it.
nlohmann::json describe(const Form& form);

}  // namespace qor
