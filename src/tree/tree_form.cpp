#include "tree/tree_form.hpp"

namespace qor {

void TreeForm::connect(ctlTree& tree, Buttons& buttons) {
    tree_ = &tree;
    buttons_ = &buttons;
    tree.RequestClose = [this](bool close) {
        if (close) unload();
    };
    tree.CheckStateChanged = [&buttons](bool any_checked) { buttons(0).set_enabled(any_checked); };
    buttons.on_click = [this](int index) { press(index); };
}

void TreeForm::on_load() {
    tree_->LoadExcel();
    (*buttons_)(0).set_enabled(false);
}

void TreeForm::press(int index) {
    if (index == 4) {
        show_help();
        return;
    }
    if (index == 0) work();
    unload();
}

void TreeForm::with_progress(const std::function<void()>& job) {
    frmComplete complete;
    tree_->Progress = [&complete](std::int32_t done, std::int32_t total) { complete.Percent(done, total); };
    complete.show(this);
    job();
    complete.unload();
    tree_->Progress = nullptr;
}

}  // namespace qor
