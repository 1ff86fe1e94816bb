#include "reports/report_form.hpp"

namespace qor {
namespace {

constexpr int drag_picture = 3;  // of the list's pictures: 1 unchecked, 2 checked

}  // namespace

ReportForm::ReportForm(std::u16string_view name) : ToolForm(name) {
    treCellInfo.on_picture_click = [this](TreeNode& row) { row.set_image(fields_.toggle(row.key())); };
    treCellInfo.on_mouse_down = [this](const Pointer& pointer) { pointer_down(pointer); };
    treCellInfo.on_mouse_move = [this](const Pointer& pointer) { pointer_move(pointer); };
    treCellInfo.on_drag_over = [this](const Pointer& pointer) { drag_over(pointer); };
    treCellInfo.on_drop = [this](const Pointer&) { drop(); };
    ctlTreeView.RequestClose = [this](bool close) {
        if (close) unload();
    };
    ctlTreeView.CheckStateChanged = [this](bool any_checked) { cmdButton(0).set_enabled(any_checked); };
    ctlTreeView.Progress = [this](std::int32_t done, std::int32_t total) {
        if (complete_) complete_->Percent(done, total);
    };
    cmdButton.on_click = [this](int index) { press(index); };
}

void ReportForm::on_load() {
    ctlTreeView.LoadExcel();
    fields_ = all_fields();
    fill_list();
    cmdButton(0).set_enabled(false);
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

void ReportForm::press(int index) {
    switch (index) {
        case 0:
            run();
            break;
        case 1:
            unload();
            break;
        default:
            show_help();
            break;
    }
}

void ReportForm::run() {
    complete_.emplace();
    hide();
    complete_->show(this);
    write_report(fields_.checked_headings());
    complete_->unload();
    complete_.reset();
    unload();
}

}  // namespace qor
