#pragma once

#include "tree/tree_form.hpp"
#include "ui/check_box.hpp"

namespace qor {

// Checks the spelling of the checked worksheets, one after the other.
class frmSpChk final : public TreeForm {
  public:
    frmSpChk();

    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    CheckBox chkIgnoreHF{*this, u"chkIgnoreHF", u"Ignore Headers and Footers in Page Setup"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

  private:
    void work() override;
};

}  // namespace qor
