#pragma once

#include <vector>

#include "ui/control.hpp"

namespace qor {

// A row of tabs, one of which is in front.
class Tabs final : public Control {
  public:
    Tabs(Form& form, std::u16string name, std::vector<std::u16string> captions)
        : Control(form, std::move(name)), captions_(std::move(captions)) {}

    const std::vector<std::u16string>& captions() const noexcept { return captions_; }
    int current() const noexcept { return current_; }

    // Raises on_click with the tab that was left when another one comes to the front.
    void turn_to(int tab) {
        const int left = current_;
        if (assign(current_, tab)) on_click(left);
    }

    Event<int> on_click;

  private:
    std::vector<std::u16string> captions_;
    int current_ = 0;
};

}  // namespace qor
