#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"

// The check boxes of the tree: where one is hit, and what a click into one does to the other levels.
namespace qor {
namespace {

// From the first sibling on, until one bears the text of the last one. The visitor answers whether to go on.
template <class Visit>
void walk_siblings(TreeNode& node, Visit visit) {
    const std::u16string& last_text = node.last_sibling()->text();
    for (TreeNode* sibling = node.first_sibling(); visit(*sibling) && sibling->text() != last_text;) {
        sibling = sibling->next_sibling();
    }
}

}  // namespace

void ctlTree::set_check_width() {
    CheckWidth = to_long(11 * treQOR.form().screen().twips_per_pixel());
}

void ctlTree::hit_test(const Pointer& pointer) {
    PointerOnLines = false;
    PointerOnCheck = false;
    HoverNode = treQOR.node_at(pointer.x, pointer.y);
    if (!HoverNode) return;
    const double left = treQOR.metrics().indentation * HoverNode->level();
    PointerOnCheck = left < pointer.x && pointer.x < left + CheckWidth;
    PointerOnLines = pointer.x < left;
}

void ctlTree::node_click(TreeNode& node) {
    if (!PointerOnCheck) return;
    node.set_image(node.image() == checked ? unchecked : checked);
    propagate(node);
}

void ctlTree::propagate(TreeNode& node) {
    switch (node.level()) {
        case 1:
            propagate_root(node);
            break;
        case 2:
            propagate_window(node);
            break;
        default:
            propagate_worksheet(node);
            break;
    }
    const TreeNode* root = treQOR.find(u"ROOT");
    CheckStateChanged(root && root->image() == checked);
}

void ctlTree::propagate_root(const TreeNode& root) {
    const int image = root.image() == checked ? checked : unchecked;
    for (std::size_t index = 1; index <= treQOR.count(); ++index) treQOR.node(index).set_image(image);
}

void ctlTree::propagate_window(TreeNode& window_node) {
    if (TreeNode* child = window_node.first_child()) {
        walk_siblings(*child, [&](TreeNode& sheet_node) {
            sheet_node.set_image(window_node.image());
            return true;
        });
    }
    window_node.parent()->set_image(is_window_checked() ? checked : unchecked);
}

void ctlTree::propagate_worksheet(TreeNode& sheet_node) {
    TreeNode& window_node = *sheet_node.parent();
    TreeNode& root = *window_node.parent();
    if (sheet_node.image() == checked) {
        if (window_node.image() == unchecked) window_node.set_image(checked);
        if (root.image() == unchecked) root.set_image(checked);
        return;
    }
    bool sibling_checked = false;
    walk_siblings(sheet_node, [&](const TreeNode& sibling) {
        sibling_checked = sibling.image() == checked;
        return !sibling_checked;
    });
    if (sibling_checked) return;
    window_node.set_image(unchecked);
    if (!is_window_checked()) root.set_image(unchecked);
}

bool ctlTree::is_window_checked() const {
    for (std::size_t index = 1; index <= treQOR.count(); ++index) {
        const TreeNode& node = treQOR.node(index);
        if (node.level() == 2 && node.image() == checked) return true;
    }
    return false;
}

}  // namespace qor
