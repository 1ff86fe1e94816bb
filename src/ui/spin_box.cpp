#include "ui/spin_box.hpp"

#include <algorithm>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor {

void SpinBox::step(int by) {
    if (!enabled()) return;
    double number = least_;
    attempt([&] { number = to_double(text()); });
    const double stepped = std::clamp<double>(number + by, least_, most_);
    set_text(from_utf8(std::to_string(static_cast<std::int32_t>(stepped))));
}

}  // namespace qor
