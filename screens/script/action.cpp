#include "screens/script/action.hpp"

#include <fmt/format.h>

#include <array>
#include <typeinfo>

#include "platform/text.hpp"
#include "screens/script/script_error.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/options.hpp"
#include "ui/text_box.hpp"
#include "ui/tree_view.hpp"

namespace qor {
namespace {

using nlohmann::json;

constexpr std::size_t names_in_message = 40;

// One action on one control of a form, with the words for what does not fit.
struct Step {
    Form& form;
    Control& control;
    const json& action;

    [[noreturn]] void refuse(const std::string& reason) const {
        throw ScriptError(
            fmt::format("{}: {}: {}: {}", to_utf8(form.name()), to_utf8(control.name()), action.dump(), reason));
    }

    std::string text(const char* key) const {
        const auto member = action.find(key);
        if (member == action.end() || !member->is_string()) refuse(fmt::format("\"{}\" must be given as a text", key));
        return member->get<std::string>();
    }

    template <class Kind>
    Kind* as() const {
        return dynamic_cast<Kind*>(&control);
    }
};

std::string join(const std::vector<std::string>& names) {
    if (names.empty()) return "nothing";
    const std::size_t shown = std::min(names.size(), names_in_message);
    const std::string text = fmt::format("{}", fmt::join(names.begin(), names.begin() + std::ptrdiff_t(shown), ", "));
    return shown == names.size() ? text : fmt::format("{} and {} more", text, names.size() - shown);
}

TreeNode& find_node(const Step& step, TreeView& tree, const char* key, bool by_text) {
    const std::string wanted = step.text(key);
    std::vector<std::string> found;
    for (std::size_t index = 1; index <= tree.count(); ++index) {
        TreeNode& node = tree.node(index);
        found.push_back(to_utf8(by_text ? node.text() : node.key()));
        if (found.back() == wanted) return node;
    }
    step.refuse(fmt::format("there is no {} \"{}\"; there is {}", by_text ? "row" : "node", wanted, join(found)));
}

void show(TreeNode& node) {
    for (TreeNode* above = node.parent(); above; above = above->parent()) above->set_expanded(true);
}

Pointer with_left_button(Pointer pointer) {
    pointer.button = MouseButton::left;
    return pointer;
}

void click(TreeView& tree, const Pointer& place) {
    tree.move_pointer(place);
    tree.press_pointer(with_left_button(place));
    tree.release_pointer(with_left_button(place));
}

void press(const Step& step) {
    const auto* button = step.as<Button>();
    if (!button) step.refuse("this is no button");
    button->press();
}

std::optional<bool> wanted_state(const Step& step) {
    const auto to = step.action.find("to");
    if (to == step.action.end()) return std::nullopt;
    if (!to->is_boolean()) step.refuse("\"to\" must be true or false");
    return to->get<bool>();
}

void check(const Step& step) {
    const std::optional<bool> wanted = wanted_state(step);
    if (auto* box = step.as<CheckBox>()) {
        box->set_checked(wanted.value_or(!box->checked()));
        return;
    }
    auto* tree = step.as<TreeView>();
    if (!tree) step.refuse("nothing can be checked here");
    const bool by_text = !step.action.contains("node");
    TreeNode& node = find_node(step, *tree, by_text ? "row" : "node", by_text);
    constexpr int checked_picture = 2;
    if (wanted && *wanted == (node.image() == checked_picture)) return;
    show(node);
    click(*tree, *tree->picture_point(node));
}

void set(const Step& step) {
    const auto to = step.action.find("to");
    if (to == step.action.end()) step.refuse("\"to\" must say the value");
    if (auto* box = step.as<TextBox>()) {
        box->set_text(from_utf8(step.text("to")));
    } else if (step.as<CheckBox>()) {
        check(step);
    } else if (auto* options = step.as<Options>()) {
        const auto count = static_cast<int>(options->captions().size());
        if (!to->is_number_integer() || *to < 0 || *to >= count) {
            step.refuse(fmt::format("\"to\" must be a whole number from 0 to {}", count - 1));
        }
        options->choose(to->get<int>());
    } else {
        step.refuse("this has no value that can be set");
    }
}

void move(const Step& step) {
    auto* tree = step.as<TreeView>();
    if (!tree) step.refuse("there are no rows here to move");
    TreeNode& dragged = find_node(step, *tree, "row", true);
    TreeNode& target = find_node(step, *tree, "onto", true);
    show(dragged);
    show(target);
    const Pointer from = *tree->text_point(dragged);
    const Pointer onto = with_left_button(*tree->text_point(target));
    tree->move_pointer(from);
    tree->press_pointer(with_left_button(from));
    // Far enough for the tree to see a drag, even onto the same row.
    tree->move_pointer({.x = from.x + tree->metrics().row_height, .y = from.y, .button = MouseButton::left});
    tree->move_pointer(onto);
    tree->release_pointer(onto);
}

struct Verb {
    const char* name;
    void (*perform)(const Step&);
};
constexpr std::array verbs{Verb{"press", press}, Verb{"check", check}, Verb{"set", set}, Verb{"move", move}};

Control& find_control(const Form& form, const std::string& name) {
    std::vector<std::string> found;
    for (Control* control : form.controls()) {
        found.push_back(to_utf8(control->name()));
        if (found.back() == name) return *control;
    }
    throw ScriptError(fmt::format("{} has no control {}; it has {}", to_utf8(form.name()), name, join(found)));
}

}  // namespace

void perform(Form& form, const json& action) {
    for (const Verb& verb : verbs) {
        if (!action.is_object() || !action.contains(verb.name)) continue;
        const json& target = action[verb.name];
        if (!target.is_string()) break;
        Control& control = find_control(form, target.get<std::string>());
        const Step step{form, control, action};
        if (!control.enabled()) step.refuse("it is disabled");
        verb.perform(step);
        return;
    }
    throw ScriptError(fmt::format("{}: {}: an action presses, checks, sets or moves a control named as a text",
                                  to_utf8(form.name()), action.dump()));
}

}  // namespace qor
