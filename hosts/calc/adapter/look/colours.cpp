#include "hosts/calc/adapter/look/colours.hpp"

#include <algorithm>
#include <array>

#include "automation/error.hpp"

namespace qor::calc {
namespace {

constexpr std::array<std::int32_t, 56> palette{
    0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF, 0x800000, 0x008000,
    0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080, 0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF,
    0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF, 0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000,
    0x008080, 0x0000FF, 0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
    0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696, 0x003366, 0x339966,
    0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333};

std::int32_t distance(std::int32_t a, std::int32_t b) {
    const auto part = [](std::int32_t x, std::int32_t y, int shift) {
        const std::int32_t difference = ((x >> shift) & 0xFF) - ((y >> shift) & 0xFF);
        return difference * difference;
    };
    return part(a, b, 16) + part(a, b, 8) + part(a, b, 0);
}

}  // namespace

std::int32_t palette_colour(std::int32_t index) {
    if (index < 1 || static_cast<std::size_t>(index) > palette.size()) throw Error(ErrorNumber::host_refused);
    return palette[static_cast<std::size_t>(index) - 1];
}

std::int32_t palette_index(std::int32_t colour) {
    const auto* nearest =
        std::ranges::min_element(palette, {}, [&](std::int32_t entry) { return distance(entry, colour); });
    return static_cast<std::int32_t>(nearest - palette.begin()) + 1;
}

}  // namespace qor::calc
