#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "automation/host_numbers.hpp"

namespace qor::calc {

// A place on the screen, in pixels.
struct WindowPlace {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool operator==(const WindowPlace&) const = default;
};

// Places for so many windows in the area. The first one is for the active window: it stands at the left or the top,
// and last and in front in a cascade. Raises 1004 for another style.
std::vector<WindowPlace> arranged(ArrangeStyle style, std::size_t count, const WindowPlace& area);

}  // namespace qor::calc
