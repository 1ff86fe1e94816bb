#pragma once

#include <cstdint>

#include "ui/text_entry.hpp"

namespace qor {

// A text box with two arrows that count its number up and down between two limits. What the text may be is up to its
// owner: the limits bind the arrows only.
class SpinBox final : public TextEntry {
  public:
    SpinBox(Form& form, std::u16string name, std::u16string text, std::int32_t least, std::int32_t most)
        : TextEntry(form, std::move(name), std::move(text)), least_(least), most_(most) {}

    std::int32_t least() const noexcept { return least_; }
    std::int32_t most() const noexcept { return most_; }

    bool takes(char16_t unit) const override { return unit >= u'0' && unit <= u'9'; }

    // What the user does with the arrows: one step up or down. At a limit it stays.
    void step(int by);

  private:
    std::int32_t least_;
    std::int32_t most_;
};

}  // namespace qor
