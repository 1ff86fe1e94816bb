#include "ui/tree_view.hpp"

#include <algorithm>
#include <cmath>

namespace qor {
namespace {

// A hand that trembles while it clicks is not dragging.
constexpr double drag_threshold = 60;  // twips

}  // namespace

TreeNode* TreeView::find(std::u16string_view key) const noexcept {
    const auto place = by_key_.find(key);
    return place == by_key_.end() ? nullptr : place->second;
}

TreeNode& TreeView::add(TreeNode* relative, Relationship relationship, std::u16string key, std::u16string text,
                        int image) {
    if (find(key)) throw Error(ErrorNumber::invalid_call);
    auto owned = std::make_unique<TreeNode>(*this, std::move(key), std::move(text), image);
    TreeNode& node = *owned;
    node.parent_ = relative && relationship != Relationship::child ? relative->parent_ : relative;
    TreeNode*& first = node.parent_ ? node.parent_->first_child_ : first_;
    TreeNode*& last = node.parent_ ? node.parent_->last_child_ : last_;

    node.previous_ = relative && relationship == Relationship::next_sibling ? relative : last;
    node.next_ = node.previous_ ? node.previous_->next_ : nullptr;
    (node.previous_ ? node.previous_->next_ : first) = &node;
    (node.next_ ? node.next_->previous_ : last) = &node;
    if (node.parent_) {
        node.level_ = node.parent_->level_ + 1;
        ++node.parent_->child_count_;
    }

    nodes_.push_back(std::move(owned));
    node.index_ = nodes_.size();
    by_key_.emplace(node.key_, &node);
    changed();
    return node;
}

void TreeView::remove(std::size_t index) {
    TreeNode& top = node(index);
    unlink(top);
    const auto goes = [&top](const TreeNode* node) {
        while (node && node != &top) node = node->parent_;
        return node != nullptr;
    };
    // Marked first: once a node is destroyed, those below it can no longer be asked for their ancestors.
    std::vector<bool> going(nodes_.size());
    for (std::size_t place = 0; place < nodes_.size(); ++place) going[place] = goes(nodes_[place].get());
    for (std::size_t place = 0; place < nodes_.size(); ++place) {
        if (going[place]) {
            forget(*nodes_[place]);
            nodes_[place].reset();
        }
    }
    std::erase(nodes_, nullptr);
    for (std::size_t place = 0; place < nodes_.size(); ++place) nodes_[place]->index_ = place + 1;
    changed();
}

void TreeView::unlink(TreeNode& node) {
    TreeNode*& first = node.parent_ ? node.parent_->first_child_ : first_;
    TreeNode*& last = node.parent_ ? node.parent_->last_child_ : last_;
    (node.previous_ ? node.previous_->next_ : first) = node.next_;
    (node.next_ ? node.next_->previous_ : last) = node.previous_;
    if (node.parent_) --node.parent_->child_count_;
}

void TreeView::forget(const TreeNode& node) {
    by_key_.erase(node.key_);
    for (TreeNode** held : {&selected_, &drop_highlight_, &pressed_, &edited_}) {
        if (*held == &node) *held = nullptr;
    }
}

void TreeView::clear() {
    by_key_.clear();
    nodes_.clear();
    first_ = last_ = selected_ = drop_highlight_ = pressed_ = edited_ = nullptr;
    changed();
}

std::vector<TreeNode*> TreeView::visible_rows() const {
    std::vector<TreeNode*> rows;
    TreeNode* node = first_;
    while (node) {
        rows.push_back(node);
        if (node->expanded_ && node->first_child_) {
            node = node->first_child_;
        } else {
            while (node && !node->next_) node = node->parent_;
            if (node) node = node->next_;
        }
    }
    return rows;
}

TreeNode* TreeView::node_at(double x, double y) const {
    if (x < 0 || y < 0) return nullptr;
    const auto rows = visible_rows();
    const double row = std::floor(y / metrics_.row_height);
    return row < static_cast<double>(rows.size()) ? rows[static_cast<std::size_t>(row)] : nullptr;
}

std::optional<Pointer> TreeView::picture_point(const TreeNode& node) const {
    return point(node, metrics_.picture_width / 2);
}

std::optional<Pointer> TreeView::text_point(const TreeNode& node) const {
    return point(node, metrics_.picture_width * 2);
}

std::optional<Pointer> TreeView::point(const TreeNode& node, double offset_from_picture) const {
    const auto rows = visible_rows();
    const auto row = std::ranges::find(rows, &node);
    if (row == rows.end()) return std::nullopt;
    return Pointer{.x = metrics_.indentation * node.level() + offset_from_picture,
                   .y = (static_cast<double>(row - rows.begin()) + 0.5) * metrics_.row_height};
}

TreeView::Part TreeView::part_at(const TreeNode& node, double x) const noexcept {
    const double left = metrics_.indentation * node.level();
    if (x <= left) return Part::lines;
    return x < left + metrics_.picture_width ? Part::picture : Part::text;
}

void TreeView::begin_drag(int icon) {
    assign(drag_icon_, icon);
}

void TreeView::move_pointer(const Pointer& pointer) {
    if (drag_icon_ != 0) {
        on_drag_over(pointer);
        return;
    }
    if (press_ && std::hypot(pointer.x - press_->x, pointer.y - press_->y) < drag_threshold) return;
    on_mouse_move(pointer);
}

void TreeView::press_pointer(const Pointer& pointer) {
    press_ = pointer;
    pressed_ = node_at(pointer.x, pointer.y);
    on_mouse_down(pointer);
    if (!pressed_ || pointer.button != MouseButton::left) return;
    if (part_at(*pressed_, pointer.x) != Part::lines) {
        select(pressed_);
    } else if (pressed_->first_child_ && pointer.x > metrics_.indentation * (pressed_->level_ - 1)) {
        pressed_->set_expanded(!pressed_->expanded_);
    }
}

void TreeView::release_pointer(const Pointer& pointer) {
    press_.reset();
    TreeNode* node = std::exchange(pressed_, nullptr);
    if (drag_icon_ != 0) {
        on_drop(pointer);
        end_drag();
        return;
    }
    on_mouse_up(pointer);
    if (!node || pointer.button != MouseButton::left || node != node_at(pointer.x, pointer.y)) return;
    const Part part = part_at(*node, pointer.x);
    if (part == Part::lines) return;
    const std::u16string key = node->key();  // the handler may empty the tree
    if (part == Part::picture) on_picture_click(*node);
    if (TreeNode* still_there = find(key)) on_node_click(*still_there);
}

}  // namespace qor
