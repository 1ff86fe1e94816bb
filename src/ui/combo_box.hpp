#pragma once

#include <vector>

#include "ui/control.hpp"

namespace qor {

// A list that drops down, of which one entry at most is chosen.
class ComboBox final : public Control {
  public:
    static constexpr int none = -1;

    ComboBox(Form& form, std::u16string name, std::vector<std::u16string> entries = {}, int chosen = none)
        : Control(form, std::move(name)), entries_(std::move(entries)), chosen_(chosen) {}

    const std::vector<std::u16string>& entries() const noexcept { return entries_; }
    void add_entry(std::u16string entry) {
        entries_.push_back(std::move(entry));
        changed();
    }
    void clear() {
        entries_.clear();
        chosen_ = none;
        changed();
    }
    int chosen() const noexcept { return chosen_; }

    // Raises on_click when the choice changes, whether the user or the program changed it.
    void choose(int place) {
        if (assign(chosen_, place)) on_click(place);
    }

    Event<int> on_click;

  private:
    std::vector<std::u16string> entries_;
    int chosen_;
};

}  // namespace qor
