#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/control.hpp"
#include "ui/tree_node.hpp"

namespace qor {

enum class MouseButton : std::uint8_t { none, left, right };

// Where the pointer is in a control, in twips from the upper left corner of its contents, and what is held down.
struct Pointer {
    double x = 0;
    double y = 0;
    MouseButton button = MouseButton::none;
    int shift = 0;  // 1 Shift, 2 Ctrl, 4 Alt, added up
};

// The sizes of the widget, in twips. A node's picture begins at its level times the indentation.
struct TreeMetrics {
    double indentation = 285;
    double row_height = 255;
    double picture_width = 165;
};

// A tree of nodes with pictures. What the pointer does comes in raw; the tree finds out the row from its own sizes,
// opens and closes branches, and raises the events.
class TreeView final : public Control {
  public:
    using Control::Control;

    const TreeMetrics& metrics() const noexcept { return metrics_; }
    void set_metrics(const TreeMetrics& metrics) { metrics_ = metrics; }

    // Nodes are numbered from 1 in the order in which they were added.
    std::size_t count() const noexcept { return nodes_.size(); }
    TreeNode& node(std::size_t index) const noexcept { return *nodes_[index - 1]; }
    TreeNode* find(std::u16string_view key) const noexcept;
    // Without a relative the node becomes the last one of level 1. Raises 5 for a key that is there already.
    TreeNode& add(TreeNode* relative, Relationship relationship, std::u16string key, std::u16string text, int image);
    // With everything below it; the nodes behind it move up.
    void remove(std::size_t index);
    void clear();

    TreeNode* selected() const noexcept { return selected_; }
    void select(TreeNode* node) { assign(selected_, node); }
    TreeNode* drop_highlight() const noexcept { return drop_highlight_; }
    void set_drop_highlight(TreeNode* node) { assign(drop_highlight_, node); }

    // The rows that are to be seen, from above: a closed branch hides what is below it.
    std::vector<TreeNode*> visible_rows() const;
    TreeNode* node_at(double x, double y) const;
    // The middle of a node's picture, and a point on its text; nothing for a node in a closed branch.
    std::optional<Pointer> picture_point(const TreeNode& node) const;
    std::optional<Pointer> text_point(const TreeNode& node) const;

    // From here until the button is released the pointer's moves are drag-overs, and the release is a drop.
    void begin_drag(int icon);
    // The picture that goes with the pointer, 0 when nothing is dragged.
    int drag_icon() const noexcept { return drag_icon_; }

    // What the user does.
    void move_pointer(const Pointer& pointer);
    void press_pointer(const Pointer& pointer);
    void release_pointer(const Pointer& pointer);

    Event<const Pointer&> on_mouse_move;
    Event<const Pointer&> on_mouse_down;
    Event<const Pointer&> on_mouse_up;
    Event<const Pointer&> on_drag_over;
    Event<const Pointer&> on_drop;
    // The left button went down and up on a node, anywhere but on the lines.
    Event<TreeNode&> on_node_click;
    // The same, but on its picture. Comes first.
    Event<TreeNode&> on_picture_click;

  private:
    friend class TreeNode;

    enum class Part : std::uint8_t { lines, picture, text };
    Part part_at(const TreeNode& node, double x) const noexcept;
    std::optional<Pointer> point(const TreeNode& node, double offset_from_picture) const;
    void unlink(TreeNode& node);
    void forget(const TreeNode& node);

    TreeMetrics metrics_;
    std::vector<std::unique_ptr<TreeNode>> nodes_;
    std::unordered_map<std::u16string_view, TreeNode*> by_key_;
    TreeNode* first_ = nullptr;
    TreeNode* last_ = nullptr;
    TreeNode* selected_ = nullptr;
    TreeNode* drop_highlight_ = nullptr;
    TreeNode* pressed_ = nullptr;
    std::optional<Pointer> press_;
    int drag_icon_ = 0;
};

template <class T>
void TreeNode::assign(T& place, T value) {
    if (place == value) return;
    place = std::move(value);
    tree_.changed();
}

}  // namespace qor
