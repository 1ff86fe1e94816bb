#include "screens/script/control_state.hpp"

#include <typeindex>
#include <unordered_map>

#include "platform/text.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/label.hpp"
#include "ui/options.hpp"
#include "ui/progress_panel.hpp"
#include "ui/text_box.hpp"
#include "ui/tree_view.hpp"

namespace qor {
namespace {

using nlohmann::json;

json value_of(const Button& button) {
    return to_utf8(button.caption());
}
json value_of(const CheckBox& box) {
    return box.checked();
}
json value_of(const Label& label) {
    return to_utf8(label.text());
}
json value_of(const Options& options) {
    return options.chosen();
}
json value_of(const ProgressPanel& panel) {
    return panel.flood_percent();
}
json value_of(const TextBox& box) {
    return to_utf8(box.text());
}

// Every node in index order; a mark is told only where it is set.
json value_of(const TreeView& tree) {
    json nodes = json::array();
    for (std::size_t index = 1; index <= tree.count(); ++index) {
        const TreeNode& node = tree.node(index);
        json entry = {{"key", to_utf8(node.key())},
                      {"text", to_utf8(node.text())},
                      {"level", node.level()},
                      {"image", node.image()}};
        if (node.expanded()) entry["expanded"] = true;
        if (node.italic()) entry["italic"] = true;
        if (node.bold()) entry["bold"] = true;
        if (node.back_color()) entry["backColor"] = *node.back_color();
        if (node.fore_color()) entry["foreColor"] = *node.fore_color();
        nodes.push_back(std::move(entry));
    }
    return nodes;
}

using ValueReader = json (*)(const Control&);

template <class Kind>
std::pair<const std::type_index, ValueReader> reader() {
    return {typeid(Kind), [](const Control& control) { return value_of(static_cast<const Kind&>(control)); }};
}

json value_of(const Control& control) {
    static const std::unordered_map<std::type_index, ValueReader> readers{
        reader<Button>(),        reader<CheckBox>(), reader<Label>(),    reader<Options>(),
        reader<ProgressPanel>(), reader<TextBox>(),  reader<TreeView>(),
    };
    return readers.at(typeid(control))(control);
}

}  // namespace

json describe(const Form& form) {
    json controls = json::object();
    for (const Control* control : form.controls()) {
        controls[to_utf8(control->name())] = {{"value", value_of(*control)}, {"enabled", control->enabled()}};
    }
    return {{"name", to_utf8(form.name())},
            {"caption", to_utf8(form.caption())},
            {"helpId", form.help_id()},
            {"controls", std::move(controls)}};
}

}  // namespace qor
