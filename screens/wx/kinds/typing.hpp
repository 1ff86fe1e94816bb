#pragma once

#include <wx/textctrl.h>

#include "screens/wx/binding.hpp"
#include "ui/text_entry.hpp"

namespace qor::wx {

// The text box of a control that is typed into.
class Typing {
  public:
    Typing(TextEntry& entry, wxWindow& parent, const Place& place);

    wxTextCtrl& box() const { return *box_; }
    void show_model();

  private:
    TextEntry& entry_;
    wxTextCtrl* box_;
};

}  // namespace qor::wx
