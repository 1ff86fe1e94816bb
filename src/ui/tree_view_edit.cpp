// What the user does to a tree besides pointing at it: commands, texts and deletions.
#include "ui/tree_view.hpp"

namespace qor {

void TreeView::leave_popup(std::optional<std::size_t> chosen) {
    PopupMenu* menu = popup_;
    assign(popup_, static_cast<PopupMenu*>(nullptr));
    if (menu && chosen) menu->choose(*chosen);
}

void TreeView::end_label_edit(const std::optional<std::u16string>& text) {
    if (!edited_) return;
    bool cancel = !text;
    if (text) on_after_label_edit(*text, cancel);
    TreeNode* node = edited_;  // gone if the handler removed it
    assign(edited_, static_cast<TreeNode*>(nullptr));
    if (node && !cancel) node->set_text(*text);
}

void TreeView::delete_selected() {
    if (!selected_ || !editable_) return;
    const std::u16string key = selected_->key();  // the handler may empty the tree
    bool cancel = false;
    on_before_delete(*selected_, cancel);
    if (cancel) return;
    if (const TreeNode* still_there = find(key)) remove(still_there->index());
}

void TreeView::cancel_drag() {
    constexpr Pointer nowhere{.x = -1, .y = -1, .button = MouseButton::left};
    move_pointer(nowhere);
    release_pointer(nowhere);
}

}  // namespace qor
