#pragma once

#include <nlohmann/json.hpp>

#include "automation/variant.hpp"

namespace qor {

// A value of the host as a script and a transcript write it: an empty cell is null, an error its text ("#DIV/0!"), a
// date its ISO text, an amount of money a number, an array a list of rows.
nlohmann::json to_json(const Variant& value);

// An argument of a call: null is one that is left out. Raises ScriptError for a list or an object.
Variant from_json(const nlohmann::json& value);

}  // namespace qor
