#include "ui/tree_node.hpp"

#include "ui/tree_view.hpp"

namespace qor {

void TreeNode::set_key(std::u16string key) {
    if (key == key_) return;
    if (tree_.find(key)) throw Error(ErrorNumber::invalid_call);
    tree_.by_key_.erase(key_);
    key_ = std::move(key);
    tree_.by_key_.emplace(key_, this);
}
void TreeNode::set_text(std::u16string text) {
    assign(text_, std::move(text));
}
void TreeNode::set_image(int image) {
    assign(image_, image);
}
void TreeNode::set_expanded(bool expanded) {
    assign(expanded_, expanded);
}
void TreeNode::set_italic(bool italic) {
    assign(italic_, italic);
}
void TreeNode::set_bold(bool bold) {
    assign(bold_, bold);
}
void TreeNode::set_back_color(std::int32_t color) {
    assign(back_color_, std::optional(color));
}
void TreeNode::set_fore_color(std::int32_t color) {
    assign(fore_color_, std::optional(color));
}

TreeNode* TreeNode::first_sibling() noexcept {
    return parent_ ? parent_->first_child_ : tree_.first_;
}
TreeNode* TreeNode::last_sibling() noexcept {
    return parent_ ? parent_->last_child_ : tree_.last_;
}

}  // namespace qor
