#include "services/frmComplete.hpp"

#include <cmath>

#include "ground/MMain.hpp"
#include "ground/product.hpp"
#include "runtime/rounding.hpp"

namespace qor {

frmComplete::frmComplete() : Form(u"frmComplete", environment().screen) {}

std::u16string_view frmComplete::caption() const noexcept {
    return product::title;
}

void frmComplete::Feedback(std::u16string_view sText) {
    lblFeedback.set_text(u"Please Wait... " + std::u16string(sText));
}

void frmComplete::Percent(std::int32_t lDone, std::int32_t lTotal) {
    if (lTotal != 0) {
        const double part = round_half_even(static_cast<double>(lDone) / lTotal, 2);
        const long long percent = std::llround(part * 100);
        if (percent < 101) SSPanel1.set_flood_percent(static_cast<int>(percent));
    }
    screen().progress(*this, lDone, lTotal);
}

}  // namespace qor
