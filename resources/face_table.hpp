#pragma once

#include <array>
#include <span>
#include <string_view>

#include "resources/faces.hpp"

namespace qor {

// One face in all its forms, each the bytes of a PNG file.
struct Face {
    std::u16string_view name;
    std::span<const unsigned char> sixteen_colors;
    std::array<std::span<const unsigned char>, face_sizes.size()> with_alpha;  // in the order of face_sizes
};

// All faces, written by the build from the drawings in resources/faces.
std::span<const Face> face_table() noexcept;

}  // namespace qor
