#pragma once

#include <cassert>
#include <initializer_list>
#include <map>

#include "ui/control.hpp"

namespace qor {

class Button final : public Control {
  public:
    Button(Form& form, std::u16string name, std::u16string_view caption)
        : Control(form, std::move(name)), caption_(caption) {}

    const std::u16string& caption() const noexcept { return caption_; }

    // What the user does. A disabled button stays silent.
    void press() const {
        if (enabled()) on_click();
    }

    Event<> on_click;

  private:
    std::u16string caption_;
};

// Buttons that share a name and are told apart by index. Each is a control of its own, named such as u"cmdButton(0)".
class Buttons {
  public:
    struct Entry {
        int index;
        std::u16string_view caption;
    };

    Buttons(Form& form, std::u16string_view name, std::initializer_list<Entry> entries);

    Button& operator()(int index) {
        const auto place = buttons_.find(index);
        assert(place != buttons_.end());
        return place->second;
    }

    Event<int> on_click;

  private:
    std::map<int, Button> buttons_;
};

}  // namespace qor
