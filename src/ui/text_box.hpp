#pragma once

#include "ui/control.hpp"

namespace qor {

class TextBox final : public Control {
  public:
    TextBox(Form& form, std::u16string name, std::u16string text = {})
        : Control(form, std::move(name)), text_(std::move(text)) {}

    const std::u16string& text() const noexcept { return text_; }

    // Raises on_change when the text changes, whether the user or the program changed it.
    void set_text(std::u16string text) {
        if (assign(text_, std::move(text))) on_change();
    }

    Event<> on_change;

  private:
    std::u16string text_;
};

}  // namespace qor
