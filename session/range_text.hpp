#pragma once

#include <nlohmann/json.hpp>

#include "automation/object.hpp"

namespace qor {

// What a range holds: {"values": [[...]], "formulas": [[...]], "formats": [[...]]}, row by row.
nlohmann::json read_range(const Object& range);

}  // namespace qor
