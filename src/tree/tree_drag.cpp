// Worksheets dragged in the tree to another place or into another workbook, moved or, with the Ctrl key, copied.
#include "automation/member_names.hpp"
#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {
namespace {

// Of the list's pictures: 1 unchecked, 2 checked.
constexpr int move_picture = 3;
constexpr int copy_picture = 4;

const TreeNode& window_of(const TreeNode& node) {
    return node.level() == 2 ? node : *node.parent();
}

}  // namespace

void ctlTree::press(const Pointer& pointer) {
    treQOR.set_drop_highlight(nullptr);
    const bool on_lines = HoverNode && HoverNode->level() < 3 && PointerOnLines;
    DragSource = on_lines || PointerOnCheck ? nullptr : treQOR.node_at(pointer.x, pointer.y);
}

void ctlTree::begin_drag(const Pointer& pointer) {
    constexpr int ctrl = 2;
    const bool wanted = pointer.button == MouseButton::left && DragSource && DragSource->level() == 3 &&
                        (pointer.shift == 0 || pointer.shift == ctrl);
    if (!wanted) return;
    DragMode = Drag::move;
    drag_as(pointer.shift == ctrl ? Drag::copy : Drag::move);
}

void ctlTree::drag_as(Drag mode) {
    if (DragMode == Drag::none) return;
    DragMode = mode;
    treQOR.begin_drag(mode == Drag::copy ? copy_picture : move_picture);
}

void ctlTree::drag_over(const Pointer& pointer) {
    if (!DragSource) return;
    TreeNode* node = treQOR.node_at(pointer.x, pointer.y);
    DropTarget = node && node->level() != 1 && node != DragSource ? node : nullptr;
    treQOR.set_drop_highlight(DropTarget);
}

void ctlTree::drop() {
    const bool placed = DragSource && DropTarget;
    std::u16string window_key;
    if (placed) {
        attempt([&] { place_dragged(*DropTarget); });
        window_key = window_of(*DropTarget).key();
    }
    treQOR.set_drop_highlight(nullptr);
    treQOR.end_drag();
    DragSource = DropTarget = nullptr;
    DragMode = Drag::none;
    if (!placed) return;
    LoadExcel();
    if (TreeNode* window_node = treQOR.find(window_key)) window_node->set_expanded(true);
}

// On a window: in front of all its worksheets. On a worksheet: behind it.
void ctlTree::place_dragged(const TreeNode& target) const {
    const bool to_front = target.level() == 2;
    const Object worksheet = worksheet_of(*DragSource);
    const Object neighbour = to_front ? workbook_of(target).get(names::Worksheets, 1).object() : worksheet_of(target);
    const bool same_workbook = to_text(window_of(target).tag()) == to_text(DragSource->parent()->tag());
    if (DragMode == Drag::move && same_workbook) {
        const std::int32_t place_before = to_long(worksheet.get(names::Index)) - 1;
        const std::int32_t wanted = to_front ? 0 : to_long(neighbour.get(names::Index));
        if (place_before == wanted) return;  // it stands there
    }
    worksheet.call(DragMode == Drag::copy ? names::Copy : names::Move,
                   named(to_front ? names::Before : names::After, neighbour));
}

}  // namespace qor
