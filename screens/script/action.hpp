#pragma once

#include <nlohmann/json.hpp>

#include "ui/form.hpp"

namespace qor {

// Does to a form's control what a user does:
//   {"press": "cmdButton(0)"}
//   {"check": CONTROL, "node": KEY} or {"check": CONTROL, "row": TEXT} in a tree, {"check": CONTROL} for a check box;
//     clicks into the box, with "to": true or false only if its state is another
//   {"set": CONTROL, "to": VALUE}
//   {"move": TREE, "row": TEXT, "onto": TEXT} or {"move": TREE, "node": KEY, "onto": KEY}, by dragging; with
//     "copy": true while Ctrl is held
//   {"menu": TREE, "node": KEY, "choose": CAPTION}, with the right button
//   {"delete": TREE, "node": KEY}, with the Delete key
// Raises ScriptError for an action that does not fit the form.
void perform(Form& form, const nlohmann::json& action);

}  // namespace qor
