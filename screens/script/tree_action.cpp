#include "screens/script/tree_action.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "platform/text.hpp"

namespace qor {
namespace {

constexpr int ctrl = 2;

const char* node_key(const Step& step) {
    return step.action.contains("node") ? "node" : "row";
}

TreeNode& find_node(const Step& step, TreeView& tree, const char* key) {
    const bool by_text = !step.action.contains("node");
    const std::string wanted = step.text(key);
    std::vector<std::string> found;
    for (std::size_t index = 1; index <= tree.count(); ++index) {
        TreeNode& node = tree.node(index);
        found.push_back(to_utf8(by_text ? node.text() : node.key()));
        if (found.back() == wanted) {
            for (TreeNode* above = node.parent(); above; above = above->parent()) above->set_expanded(true);
            return node;
        }
    }
    step.refuse(fmt::format("there is no {} \"{}\"; there is {}", by_text ? "row" : "node", wanted, join(found)));
}

TreeNode& find_node(const Step& step, TreeView& tree) {
    return find_node(step, tree, node_key(step));
}

Pointer with_button(Pointer pointer, MouseButton button, int shift = 0) {
    pointer.button = button;
    pointer.shift = shift;
    return pointer;
}

void click(TreeView& tree, const Pointer& place, MouseButton button = MouseButton::left) {
    tree.move_pointer(place);
    tree.press_pointer(with_button(place, button));
    tree.release_pointer(with_button(place, button));
}

}  // namespace

void check_node(const Step& step, TreeView& tree) {
    const std::optional<bool> wanted = step.truth("to");
    const TreeNode& node = find_node(step, tree);
    constexpr int checked_picture = 2;
    if (wanted && *wanted == (node.image() == checked_picture)) return;
    click(tree, *tree.picture_point(node));
}

void double_click_node(const Step& step, TreeView& tree) {
    const Pointer place = *tree.text_point(find_node(step, tree));
    click(tree, place);
    click(tree, place);
    tree.double_click();
}

void drag_node(const Step& step, TreeView& tree) {
    const TreeNode& dragged = find_node(step, tree);
    const TreeNode& target = find_node(step, tree, "onto");
    const int shift = step.truth("copy").value_or(false) ? ctrl : 0;
    const Pointer from = *tree.text_point(dragged);
    const Pointer onto = with_button(*tree.text_point(target), MouseButton::left, shift);
    tree.move_pointer(from);
    tree.press_pointer(with_button(from, MouseButton::left, shift));
    // Far enough for the tree to see a drag, even onto the same row.
    tree.move_pointer(with_button({.x = from.x + tree.metrics().row_height, .y = from.y}, MouseButton::left, shift));
    tree.move_pointer(onto);
    tree.release_pointer(onto);
}

void choose_command(const Step& step, TreeView& tree) {
    const bool on_node = step.action.contains("node") || step.action.contains("row");
    const double below_all = static_cast<double>(tree.visible_rows().size() + 1) * tree.metrics().row_height;
    const Pointer place = on_node ? *tree.text_point(find_node(step, tree)) : Pointer{.x = 0, .y = below_all};
    click(tree, place, MouseButton::right);
    if (!tree.popup()) step.refuse("no menu comes up");
    const auto& commands = tree.popup()->commands();
    const std::string caption = step.text("choose");
    const auto chosen = std::ranges::find(commands, from_utf8(caption), &PopupMenu::Command::caption);
    if (chosen == commands.end()) {
        std::vector<std::string> captions;
        captions.reserve(commands.size());
        for (const auto& command : commands) captions.push_back(to_utf8(command.caption));
        step.refuse(fmt::format("the menu has no \"{}\"; it has {}", caption, join(captions)));
    }
    if (!chosen->enabled) step.refuse(fmt::format("\"{}\" is disabled", caption));
    tree.leave_popup(static_cast<std::size_t>(chosen - commands.begin()));
}

void type_over_label(const Step& step, TreeView& tree) {
    if (!tree.edited()) step.refuse("no text is being edited");
    if (step.action["to"].is_null()) {
        tree.end_label_edit({});
    } else {
        tree.end_label_edit(from_utf8(step.text("to")));
    }
}

void delete_node(const Step& step, TreeView& tree) {
    if (!tree.editable()) step.refuse("nothing can be deleted here");
    click(tree, *tree.text_point(find_node(step, tree)));
    tree.delete_selected();
}

}  // namespace qor
