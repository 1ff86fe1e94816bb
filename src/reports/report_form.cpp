#include "reports/report_form.hpp"

namespace qor {
namespace {

constexpr int drag_picture = 3;  // of the list's pictures: 1 unchecked, 2 checked

}  // namespace

ReportForm::ReportForm(const ReportKind& kind) : TreeForm(kind.form), kind_(kind) {
    connect(ctlTreeView, cmdButton);
    treCellInfo.on_picture_click = [this](TreeNode& row) { row.set_image(fields_.toggle(row.key())); };
    treCellInfo.on_mouse_down = [this](const Pointer& pointer) { pointer_down(pointer); };
    treCellInfo.on_mouse_move = [this](const Pointer& pointer) { pointer_move(pointer); };
    treCellInfo.on_drag_over = [this](const Pointer& pointer) { drag_over(pointer); };
    treCellInfo.on_drop = [this](const Pointer&) { drop(); };
}

void ReportForm::on_load() {
    TreeForm::on_load();
    fields_ = kind_.fields();
    fill_list();
}

void ReportForm::on_unload() {
    fields_ = {};
}

void ReportForm::fill_list() {
    treCellInfo.clear();
    for (const ReportField& field : fields_.entries()) {
        treCellInfo.add(nullptr, Relationship::child, field.Key, field.Heading, field.CheckState);
    }
}

void ReportForm::pointer_down(const Pointer& pointer) {
    dragged_ = treCellInfo.node_at(pointer.x, pointer.y);
}

void ReportForm::pointer_move(const Pointer& pointer) {
    if (dragged_ && pointer.button == MouseButton::left && pointer.shift == 0) treCellInfo.begin_drag(drag_picture);
}

void ReportForm::drag_over(const Pointer& pointer) {
    treCellInfo.set_drop_highlight(treCellInfo.node_at(pointer.x, pointer.y));
}

void ReportForm::drop() {
    const TreeNode* target = treCellInfo.drop_highlight();
    const TreeNode* dragged = std::exchange(dragged_, nullptr);
    treCellInfo.set_drop_highlight(nullptr);
    if (!dragged || !target || target == dragged) return;
    fields_.move(fields_.find(dragged->key())->Order, fields_.find(target->key())->Order);
    fill_list();
}

void ReportForm::work() {
    hide();
    with_progress([&] { kind_.write(ctlTreeView, fields_.checked_headings()); });
}

}  // namespace qor
