#pragma once

#include <optional>

namespace qor {

// Empties the host's list of recent files: always, or, unless that is asked for, where the user has chosen so.
void ClearRecentFiles(const std::optional<bool>& always);

}  // namespace qor
