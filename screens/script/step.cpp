#include "screens/script/step.hpp"

#include <fmt/format.h>

#include "platform/text.hpp"
#include "screens/script/script_error.hpp"

namespace qor {
namespace {

constexpr std::size_t names_in_message = 40;

}  // namespace

void Step::refuse(const std::string& reason) const {
    throw ScriptError(
        fmt::format("{}: {}: {}: {}", to_utf8(form.name()), to_utf8(control.name()), action.dump(), reason));
}

std::string Step::text(const char* key) const {
    const auto member = action.find(key);
    if (member == action.end() || !member->is_string()) refuse(fmt::format("\"{}\" must be given as a text", key));
    return member->get<std::string>();
}

std::optional<bool> Step::truth(const char* key) const {
    const auto member = action.find(key);
    if (member == action.end()) return std::nullopt;
    if (!member->is_boolean()) refuse(fmt::format("\"{}\" must be true or false", key));
    return member->get<bool>();
}

std::string join(const std::vector<std::string>& names) {
    if (names.empty()) return "nothing";
    const std::size_t shown = std::min(names.size(), names_in_message);
    const std::string text = fmt::format("{}", fmt::join(names.begin(), names.begin() + std::ptrdiff_t(shown), ", "));
    return shown == names.size() ? text : fmt::format("{} and {} more", text, names.size() - shown);
}

}  // namespace qor
