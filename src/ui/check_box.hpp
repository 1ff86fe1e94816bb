#pragma once

#include "ui/control.hpp"

namespace qor {

class CheckBox final : public Control {
  public:
    CheckBox(Form& form, std::u16string name, std::u16string_view caption)
        : Control(form, std::move(name)), caption_(caption) {}

    const std::u16string& caption() const noexcept { return caption_; }
    bool checked() const noexcept { return checked_; }

    // Raises on_click when the state changes, whether the user or the program changed it.
    void set_checked(bool checked) {
        if (assign(checked_, checked)) on_click();
    }

    Event<> on_click;

  private:
    std::u16string caption_;
    bool checked_ = false;
};

}  // namespace qor
