#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace qor {

// A member's name, spelled once. Names that differ only in the case of letters are one name. A name carries a small
// dense number, so that a host can keep what it knows about the name in an array.
class MemberName {
  public:
    explicit MemberName(std::u16string_view text);
    // The name if it has been spelled anywhere before, so that texts from outside leave nothing behind.
    static std::optional<MemberName> known(std::u16string_view text);
    // The name that carries that number.
    static std::optional<MemberName> numbered(std::size_t id);
    // A name of the compiler's own, whose number is its place in names::all.
    static consteval MemberName spelled(std::u16string_view text, std::size_t id) { return {text, id}; }

    constexpr std::u16string_view text() const noexcept { return text_; }
    constexpr std::size_t id() const noexcept { return id_; }
    constexpr bool operator==(const MemberName& other) const noexcept { return id_ == other.id_; }

  private:
    constexpr MemberName(std::u16string_view text, std::size_t id) noexcept : text_(text), id_(id) {}

    std::u16string_view text_;  // in the spelling that came first; lives as long as the process
    std::size_t id_;
};

}  // namespace qor
