#pragma once

#include "ui/form.hpp"
#include "ui/pick_box.hpp"

namespace qor {

// A box for the address of a range, which the user may point at in the host instead of typing it. What the host refuses
// while the user picks is passed over.
class ctlCellRef {
  public:
    ctlCellRef(Form& form, std::u16string name);

    PickBox box;

    std::u16string AppTitle;       // of the host's selection box and of messages
    bool SingleArea = false;       // only the first area is kept
    bool SingleCell = false;       // only the first cell is kept
    std::int32_t SelectSpeck = 0;  // 1: the selection's whole column, 2: its whole row, 0: as it was selected
    bool SaveB4Select = false;     // the range's workbook must have a file

    Event<> Change;
    // True before the host's selection box opens, false after it has closed.
    Event<bool> Selecting;

    // Selects the range of that address in the host. Raises what the host raises.
    void SelectRange() const;

    // The form's part in the picking, as forms commonly have it: away while the user points at cells, then back, and
    // the range selected.
    void let_form_step_aside();

  private:
    void pick();
    std::u16string reduced(const std::u16string& address) const;
    void require_saved_workbook();
};

}  // namespace qor
