#pragma once

#include "tree/tree_form.hpp"

namespace qor {

// Deletes those of the checked worksheets that are empty.
class frmDelWk final : public TreeForm {
  public:
    frmDelWk();

    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

  private:
    void work() override;
};

}  // namespace qor
