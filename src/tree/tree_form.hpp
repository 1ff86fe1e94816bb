#pragma once

#include <optional>

#include "ground/tool_form.hpp"
#include "services/frmComplete.hpp"
#include "tree/ctlTree.hpp"
#include "ui/button.hpp"

namespace qor {

// A dialog that works on what is checked in the tree: OK can be pressed once anything is, works, and closes.
class TreeForm : public ToolForm {
  protected:
    using ToolForm::ToolForm;

    // The form's own controls, called as soon as they stand. Buttons are 0 OK, 1 Cancel and 4 Help.
    void connect(ctlTree& tree, Buttons& buttons);
    // What OK does before the form closes.
    virtual void work() = 0;
    // Runs a job on the tree under a window that shows its progress.
    void with_progress(const std::function<void()>& job);

    void on_load() override;

  private:
    void press(int index);

    ctlTree* tree_ = nullptr;
    Buttons* buttons_ = nullptr;
};

}  // namespace qor
