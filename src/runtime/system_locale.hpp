#pragma once

#include "runtime/locale.hpp"

namespace qor {

// What the user chose in the system; whatever the system does not say is as in English (United States).
Locale system_locale();

}  // namespace qor
