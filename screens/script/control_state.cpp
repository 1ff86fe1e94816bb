#include "screens/script/control_state.hpp"

#include <typeindex>
#include <unordered_map>

#include "platform/text.hpp"
#include "runtime/format.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/combo_box.hpp"
#include "ui/date_picker.hpp"
#include "ui/frame.hpp"
#include "ui/label.hpp"
#include "ui/list_box.hpp"
#include "ui/options.hpp"
#include "ui/pick_box.hpp"
#include "ui/progress_panel.hpp"
#include "ui/spin_box.hpp"
#include "ui/swatch.hpp"
#include "ui/tabs.hpp"
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
json value_of(const TextEntry& entry) {
    return to_utf8(entry.text());
}
json value_of(const ComboBox& combo) {
    return combo.chosen();
}
json value_of(const DatePicker& picker) {
    return to_utf8(format(picker.day(), u"yyyy-mm-dd"));
}
json value_of(const Frame& frame) {
    return to_utf8(frame.caption());
}
json value_of(const Swatch& swatch) {
    return {{"backColor", swatch.back_color()}, {"foreColor", swatch.fore_color()}};
}
json value_of(const Tabs& tabs) {
    return tabs.current();
}

// The rows with all their columns, and the places of the selected ones.
json value_of(const ListBox& list) {
    json rows = json::array();
    for (std::size_t row = 0; row < list.count(); ++row) {
        json& texts = rows.emplace_back(json::array());
        for (std::size_t column = 0; column < list.columns().size(); ++column) {
            texts.push_back(to_utf8(list.text(row, column)));
        }
    }
    return {{"rows", std::move(rows)}, {"selected", list.selection()}};
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
        reader<Button>(),  reader<CheckBox>(), reader<ComboBox>(), reader<DatePicker>(), reader<Frame>(),
        reader<Label>(),   reader<ListBox>(),  reader<Options>(),  reader<PickBox>(),    reader<ProgressPanel>(),
        reader<SpinBox>(), reader<Swatch>(),   reader<Tabs>(),     reader<TextBox>(),    reader<TreeView>(),
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
