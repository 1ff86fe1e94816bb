#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "ui/event.hpp"

namespace qor {

class Form;

// The state of one control of a form, without any toolkit. A control enters itself in its form's list; a screen finds
// it there by name and picks what draws it by the type of the control, so that a new kind is a new class here and a
// new row in each screen. Handlers run on the one thread that all forms share.
class Control {
  public:
    Control(Form& form, std::u16string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    Form& form() const noexcept { return form_; }
    const std::u16string& name() const noexcept { return name_; }

    bool enabled() const noexcept { return enabled_; }
    void set_enabled(bool enabled) { assign(enabled_, enabled); }

    // Raised after every change of what is to be seen. For the screen that draws the control.
    Event<> changed;

  protected:
    template <class T>
    bool assign(T& place, T value) {
        if (place == value) return false;
        place = std::move(value);
        changed();
        return true;
    }

  private:
    Form& form_;
    std::u16string name_;
    bool enabled_ = true;
};

}  // namespace qor
