#pragma once

#include <cstddef>

#include "ui/control.hpp"

namespace qor {

// What all controls with a line of text to type into have in common.
class TextEntry : public Control {
  public:
    TextEntry(Form& form, std::u16string name, std::u16string text = {})
        : Control(form, std::move(name)), text_(std::move(text)) {}

    const std::u16string& text() const noexcept { return text_; }

    // Raises on_change when the text changes, whether the user or the program changed it.
    void set_text(std::u16string text) {
        if (assign(text_, std::move(text))) on_change();
    }

    // A locked one shows its text and takes no typing.
    bool locked() const noexcept { return locked_; }
    void set_locked(bool locked) { assign(locked_, locked); }
    const std::u16string& tooltip() const noexcept { return tooltip_; }
    void set_tooltip(std::u16string tooltip) { assign(tooltip_, std::move(tooltip)); }

    // Whether a character that is typed goes into the text.
    virtual bool takes(char16_t) const { return true; }

    Event<> on_change;
    Event<> on_enter;  // the control gets the focus
    Event<> on_leave;  // the focus goes on to another control of the form

  private:
    std::u16string text_;
    std::u16string tooltip_;
    bool locked_ = false;
};

}  // namespace qor
