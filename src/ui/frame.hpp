#pragma once

#include "ui/control.hpp"

namespace qor {

// A captioned frame around other controls. While it is disabled, the user reaches none of them.
class Frame final : public Control {
  public:
    Frame(Form& form, std::u16string name, std::u16string_view caption)
        : Control(form, std::move(name)), caption_(caption) {}

    const std::u16string& caption() const noexcept { return caption_; }

  private:
    std::u16string caption_;
};

}  // namespace qor
