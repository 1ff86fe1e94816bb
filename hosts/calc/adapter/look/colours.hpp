#pragma once

#include <cstdint>

namespace qor::calc {

// Excel has red in the lowest byte, the office has blue there.
constexpr std::int32_t swap_red_and_blue(std::int32_t colour) {
    return ((colour & 0xFF) << 16) | (colour & 0xFF00) | ((colour >> 16) & 0xFF);
}

// The office's colour for a place from 1 in Excel's palette of 56. Raises 1004 for any other number.
std::int32_t palette_colour(std::int32_t index);
// The first place in the palette that has this colour of the office, else the one that comes nearest.
std::int32_t palette_index(std::int32_t colour);

}  // namespace qor::calc
