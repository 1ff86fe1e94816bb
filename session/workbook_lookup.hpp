#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "automation/object.hpp"

namespace qor {

// The things that a script names, found in the host. All raise ScriptError, which names the thing and lists what there
// is.

Object find_workbook(const Object& application, const std::string& name);  // "active" is the active one
Object find_sheet(const Object& workbook, const nlohmann::json& name_or_number);
Object find_range(const Object& sheet, const std::string& address);

std::string name_of(const Object& named);

}  // namespace qor
