#pragma once

#include "ui/form.hpp"
#include "ui/pick_box.hpp"

namespace qor {

// A box for a folder, which the user may pick instead of typing it. Leaving it with a folder that there is not says so.
class ctlBrowse {
  public:
    ctlBrowse(Form& form, std::u16string name);

    PickBox box;
    bool FolderExists = false;  // as it was last looked for

    Event<> Change;

  private:
    void leave();
    void pick();
};

}  // namespace qor
