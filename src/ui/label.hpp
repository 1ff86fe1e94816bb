#pragma once

#include "ui/control.hpp"

namespace qor {

class Label final : public Control {
  public:
    Label(Form& form, std::u16string name, std::u16string text = {})
        : Control(form, std::move(name)), text_(std::move(text)) {}

    const std::u16string& text() const noexcept { return text_; }
    void set_text(std::u16string text) { assign(text_, std::move(text)); }

  private:
    std::u16string text_;
};

}  // namespace qor
