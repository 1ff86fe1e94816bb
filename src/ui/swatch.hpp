#pragma once

#include <cstdint>

#include "ui/control.hpp"

namespace qor {

// A button whose face shows the colours that it stands for. Colours are 0xBBGGRR.
class Swatch final : public Control {
  public:
    Swatch(Form& form, std::u16string name, std::u16string_view caption)
        : Control(form, std::move(name)), caption_(caption) {}

    const std::u16string& caption() const noexcept { return caption_; }
    std::int32_t back_color() const noexcept { return back_color_; }
    void set_back_color(std::int32_t color) { assign(back_color_, color); }
    std::int32_t fore_color() const noexcept { return fore_color_; }
    void set_fore_color(std::int32_t color) { assign(fore_color_, color); }

    void press() const {
        if (enabled()) on_click();
    }

    Event<> on_click;

  private:
    std::u16string caption_;
    std::int32_t back_color_ = 0xFFFFFF;
    std::int32_t fore_color_ = 0;
};

}  // namespace qor
