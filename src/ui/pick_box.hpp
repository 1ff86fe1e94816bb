#pragma once

#include "ui/text_entry.hpp"

namespace qor {

// A text box with a button at its end, through which the user picks the text instead of typing it.
class PickBox final : public TextEntry {
  public:
    PickBox(Form& form, std::u16string name, std::u16string_view face)
        : TextEntry(form, std::move(name)), face_(face) {}

    // The name of the picture on the button.
    std::u16string_view face() const noexcept { return face_; }

    // What the user does: a click of the button, or Alt with Down Arrow in the box.
    void pick() const {
        if (enabled()) on_pick();
    }

    Event<> on_pick;

  private:
    std::u16string_view face_;
};

}  // namespace qor
