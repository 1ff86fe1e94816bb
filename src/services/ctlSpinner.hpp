#pragma once

#include "ui/form.hpp"
#include "ui/spin_box.hpp"

namespace qor {

// A box for a number between two limits. A number beyond one becomes the limit; a text that is no number stays, since
// it may be on its way to one.
class ctlSpinner {
  public:
    ctlSpinner(Form& form, std::u16string name, std::u16string text = u"0", std::int16_t Min = 0,
               std::int32_t Max = 99999);

    SpinBox box;

    Event<> Change;

  private:
    void change();
};

}  // namespace qor
