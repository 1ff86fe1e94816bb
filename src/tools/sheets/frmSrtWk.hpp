#pragma once

#include "tree/tree_form.hpp"
#include "ui/options.hpp"

namespace qor {

// Sorts the worksheets of the workbooks of the checked windows by their names.
class frmSrtWk final : public TreeForm {
  public:
    frmSrtWk();

    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    Options optOrder{*this, u"optOrder", {u"Ascending", u"Descending"}};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

  private:
    void work() override;
};

}  // namespace qor
