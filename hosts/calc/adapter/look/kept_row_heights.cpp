#include "hosts/calc/adapter/look/kept_row_heights.hpp"

#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

constexpr const char* adjusts_heights = "IsAdjustHeightEnabled";

}  // namespace

KeptRowHeights::KeptRowHeights(const Document& document) : document_(document) {
    set_property(document_, adjusts_heights, false);
}

KeptRowHeights::~KeptRowHeights() {
    // Rows that never fit again would be seen, so one failure is not believed.
    if (!release()) release();
}

bool KeptRowHeights::release() const {
    return attempt([&] { guarded([&] { set_property(document_, adjusts_heights, true); }); }) == 0;
}

}  // namespace qor::calc
