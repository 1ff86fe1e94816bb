#pragma once

#include <filesystem>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace qor {

// Checks of a script's shape. All raise ScriptError, with `where` telling the part of the script.

void require_object(const nlohmann::json& value, std::string_view where);

// Every key of the object is one of those known.
void require_keys(const nlohmann::json& object, std::initializer_list<std::string_view> known, std::string_view where);

// The text at the key of the object; raises ScriptError where it is absent or no text.
const std::string& required_text(const nlohmann::json& object, const char* key, std::string_view where);

// The list at the key of the object, or an empty one.
const nlohmann::json& list_at(const nlohmann::json& object, const char* key, std::string_view where);

// The path that a text of the script means; relative ones start from `folder`.
std::filesystem::path path_of(const std::string& text, const std::filesystem::path& folder);

// "a, b and c", or "none"
std::string enumeration(const std::vector<std::string>& names);

}  // namespace qor
