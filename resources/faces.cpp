#include "resources/faces.hpp"

#include <algorithm>

#include "resources/face_table.hpp"

namespace qor {
namespace {

const Face* find_face(std::u16string_view name) noexcept {
    const auto faces = face_table();
    const auto face = std::ranges::find(faces, name, &Face::name);
    return face == faces.end() ? nullptr : &*face;
}

}  // namespace

std::span<const std::byte> face_png(std::u16string_view name, int size) noexcept {
    const Face* face = find_face(name);
    const auto place = std::ranges::find(face_sizes, size);
    if (face == nullptr || place == face_sizes.end()) return {};
    return std::as_bytes(face->with_alpha[static_cast<std::size_t>(place - face_sizes.begin())]);
}

std::span<const std::byte> face_png_16_colors(std::u16string_view name) noexcept {
    const Face* face = find_face(name);
    if (face == nullptr) return {};
    return std::as_bytes(face->sixteen_colors);
}

}  // namespace qor
