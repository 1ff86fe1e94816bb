#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace qor {

// The widths in pixels of the square faces with an alpha channel.
inline constexpr std::array face_sizes{16, 24, 32, 48};

// The PNG file of a face with an alpha channel; nothing for a name or a size that there is not.
std::span<const std::byte> face_png(std::u16string_view name, int size) noexcept;

// The PNG file of a face of 16 by 16 pixels and at most 16 colours, every pixel opaque or clear; nothing for a name
// that there is not.
std::span<const std::byte> face_png_16_colors(std::u16string_view name) noexcept;

}  // namespace qor
