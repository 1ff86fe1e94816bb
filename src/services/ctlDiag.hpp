#pragma once

#include "ui/form.hpp"
#include "ui/pick_box.hpp"

namespace qor {

// A box for a workbook template, which the user may pick instead of typing its path.
class ctlDiag {
  public:
    ctlDiag(Form& form, std::u16string name);

    PickBox box;

    Event<> Change;

  private:
    void pick();
};

}  // namespace qor
