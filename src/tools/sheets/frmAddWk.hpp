#pragma once

#include "services/ctlSpinner.hpp"
#include "tree/tree_form.hpp"
#include "ui/options.hpp"

namespace qor {

// Adds worksheets to the workbooks of the checked windows.
class frmAddWk final : public TreeForm {
  public:
    frmAddWk();

    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    ctlSpinner ctlSpinner1{*this, u"ctlSpinner1"};
    Options optOrder{*this, u"optOrder", {u"Beginning", u"End"}};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

  private:
    void work() override;
};

}  // namespace qor
