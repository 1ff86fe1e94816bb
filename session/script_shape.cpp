#include "session/script_shape.hpp"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "screens/script/script_error.hpp"

namespace qor {

using nlohmann::json;

void require_object(const json& value, std::string_view where) {
    if (!value.is_object()) throw ScriptError(fmt::format("{} must be an object, but it is {}", where, value.dump()));
}

void require_keys(const json& object, std::initializer_list<std::string_view> known, std::string_view where) {
    require_object(object, where);
    for (const auto& [key, value] : object.items()) {
        if (std::ranges::find(known, key) == known.end()) {
            throw ScriptError(fmt::format("{} has the unknown key \"{}\"; known are {}", where, key,
                                          enumeration({known.begin(), known.end()})));
        }
    }
}

const std::string& required_text(const json& object, const char* key, std::string_view where) {
    const auto found = object.find(key);
    if (found == object.end()) throw ScriptError(fmt::format("{} lacks \"{}\"", where, key));
    if (!found->is_string()) {
        throw ScriptError(fmt::format("\"{}\" in {} must be a text, but it is {}", key, where, found->dump()));
    }
    return found->get_ref<const std::string&>();
}

const json& list_at(const json& object, const char* key, std::string_view where) {
    static const json none = json::array();
    const auto found = object.find(key);
    if (found == object.end()) return none;
    if (!found->is_array()) {
        throw ScriptError(fmt::format("\"{}\" in {} must be a list, but it is {}", key, where, found->dump()));
    }
    return *found;
}

std::filesystem::path path_of(const std::string& text, const std::filesystem::path& folder) {
    return (folder / text).lexically_normal();
}

std::string enumeration(const std::vector<std::string>& names) {
    if (names.empty()) return "none";
    if (names.size() == 1) return names.front();
    return fmt::format("{} and {}", fmt::join(names.begin(), names.end() - 1, ", "), names.back());
}

}  // namespace qor
