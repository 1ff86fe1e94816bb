#include "ui/control.hpp"

#include "ui/form.hpp"

namespace qor {

Control::Control(Form& form, std::u16string name) : form_(form), name_(std::move(name)) {
    form.controls_.push_back(this);
}

}  // namespace qor
