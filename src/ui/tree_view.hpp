#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/control.hpp"
#include "ui/popup_menu.hpp"
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

    // From here until the button is released the pointer's moves are drag-overs, and the release is a drop. Called
    // again in a drag, only the picture changes.
    void begin_drag(int icon);
    void end_drag() { assign(drag_icon_, 0); }
    // The picture that goes with the pointer, 0 when nothing is dragged.
    int drag_icon() const noexcept { return drag_icon_; }

    // Comes up where the pointer is, until the user chooses from it or leaves it.
    void show_popup(PopupMenu& menu) { assign(popup_, &menu); }
    PopupMenu* popup() const noexcept { return popup_; }
    // What the user does: a command by its place, or none.
    void leave_popup(std::optional<std::size_t> chosen);

    // Whether the user may delete nodes and type over their texts.
    bool editable() const noexcept { return editable_; }
    void set_editable(bool editable) { editable_ = editable; }

    // The selected node's text is to be typed over, until the user has done so or leaves it. Does nothing without one.
    void start_label_edit() { assign(edited_, selected_); }
    TreeNode* edited() const noexcept { return edited_; }
    // What the user does: another text, or none.
    void end_label_edit(const std::optional<std::u16string>& text);

    // What the user does with the keyboard: deletes the selected node, and presses or releases a key; the state is that
    // of Shift, Ctrl and Alt afterwards, as in Pointer.
    void delete_selected();
    void press_key(int shift) const { on_key_down(shift); }
    void release_key(int shift) const { on_key_up(shift); }

    // What the user does with the pointer. A double click comes after the release that ends it.
    void move_pointer(const Pointer& pointer);
    void press_pointer(const Pointer& pointer);
    void release_pointer(const Pointer& pointer);
    void double_click() const { on_double_click(); }
    // The pointer went away in a drag, which ends nowhere.
    void cancel_drag();

    Event<const Pointer&> on_mouse_move;
    Event<const Pointer&> on_mouse_down;
    Event<const Pointer&> on_mouse_up;
    Event<const Pointer&> on_drag_over;
    Event<const Pointer&> on_drop;
    Event<> on_double_click;
    Event<int> on_key_down;
    Event<int> on_key_up;
    // The left button went down and up on a node, anywhere but on the lines.
    Event<TreeNode&> on_node_click;
    // The same, but on its picture. Comes first.
    Event<TreeNode&> on_picture_click;
    // The edited node still has its old text; it takes the new one unless the handler sets the flag, which cancels.
    Event<const std::u16string&, bool&> on_after_label_edit;
    // The node goes, with everything below it, unless the handler sets the flag.
    Event<TreeNode&, bool&> on_before_delete;

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
    TreeNode* edited_ = nullptr;
    PopupMenu* popup_ = nullptr;
    std::optional<Pointer> press_;
    int drag_icon_ = 0;
    bool editable_ = false;
};

template <class T>
void TreeNode::assign(T& place, T value) {
    if (place == value) return;
    place = std::move(value);
    tree_.changed();
}

}  // namespace qor
