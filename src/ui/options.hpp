#pragma once

#include <vector>

#include "ui/control.hpp"

namespace qor {

// A group of option buttons of which one at most is chosen.
class Options final : public Control {
  public:
    static constexpr int none = -1;

    Options(Form& form, std::u16string name, std::vector<std::u16string> captions)
        : Control(form, std::move(name)), captions_(std::move(captions)) {}

    const std::vector<std::u16string>& captions() const noexcept { return captions_; }
    int chosen() const noexcept { return chosen_; }

    // Raises on_click when the choice changes, whether the user or the program changed it.
    void choose(int place) {
        if (assign(chosen_, place)) on_click(place);
    }

    Event<int> on_click;

  private:
    std::vector<std::u16string> captions_;
    int chosen_ = none;
};

}  // namespace qor
