#pragma once

#include "ground/tool_form.hpp"
#include "tree/ctlTree.hpp"
#include "ui/button.hpp"

namespace qor {

// A map of all open workbooks: what it does, the tree does.
class frmNav final : public ToolForm {
  public:
    frmNav();

    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

  private:
    void on_load() override { ctlTreeView.LoadExcel(); }
};

}  // namespace qor
