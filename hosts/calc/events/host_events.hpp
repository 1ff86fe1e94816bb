#pragma once

#include <functional>
#include <string>

namespace qor::calc {

struct SelectionPlace {
    std::u16string workbook;
    std::u16string worksheet;
    std::u16string address;  // as $A$1:$B$2,$D$4

    bool operator==(const SelectionPlace&) const = default;
};

// Who answers what happens in the host; an empty handler passes it over. All are called on the main thread, none while
// a command runs, a dialog of the office is open or another handler runs. What happens meanwhile is told afterwards,
// each thing once, the last selection and the last window only, and a workbook that is gone again not at all. Only what
// is about to happen cannot wait: a save or a closing that a command causes is not told.
struct HostEvents {
    using WorkbookHandler = std::function<void(const std::u16string& name)>;

    WorkbookHandler workbook_opened;
    WorkbookHandler workbook_created;
    WorkbookHandler workbook_to_be_saved;
    WorkbookHandler workbook_saved_as;  // under a new name
    // The user may still keep it open.
    WorkbookHandler workbook_closing;
    WorkbookHandler window_activated;
    // Once a change, in whichever window, when the main thread is next free. A range of cells only.
    std::function<void(const SelectionPlace& place)> selection_changed;
};

}  // namespace qor::calc
