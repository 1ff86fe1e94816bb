#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "ui/form.hpp"

namespace qor {

// One action of a script on one control of a form, with the words for what does not fit.
struct Step {
    Form& form;
    Control& control;
    const nlohmann::json& action;

    // Raises ScriptError, as the members below do for what is missing or has another shape.
    [[noreturn]] void refuse(const std::string& reason) const;

    std::string text(const char* key) const;
    // Absent where the action does not say.
    std::optional<bool> truth(const char* key) const;

    template <class Kind>
    Kind* as() const {
        return dynamic_cast<Kind*>(&control);
    }
};

// The names, the first of them where there are many.
std::string join(const std::vector<std::string>& names);

}  // namespace qor
