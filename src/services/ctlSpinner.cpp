#include "services/ctlSpinner.hpp"

#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor {

ctlSpinner::ctlSpinner(Form& form, std::u16string name, std::u16string text, std::int16_t Min, std::int32_t Max)
    : box(form, std::move(name), std::move(text), Min, Max) {
    box.on_change = [this] { change(); };
}

void ctlSpinner::change() {
    const double least = box.least();
    const double most = box.most();
    double number = least;
    attempt([&] { number = to_double(box.text()); });
    if (number < least || number > most) {
        // Comes back here, and raises Change once.
        box.set_text(from_utf8(std::to_string(number < least ? box.least() : box.most())));
    } else {
        Change();
    }
}

}  // namespace qor
