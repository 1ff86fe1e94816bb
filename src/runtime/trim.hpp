#pragma once

#include <algorithm>
#include <string_view>

namespace qor {

// Without the spaces, and only these, on one end or on both.
constexpr std::u16string_view trim_left(std::u16string_view text) {
    return text.substr(std::min(text.find_first_not_of(u' '), text.size()));
}
constexpr std::u16string_view trim_right(std::u16string_view text) {
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}
constexpr std::u16string_view trim(std::u16string_view text) {
    return trim_right(trim_left(text));
}

}  // namespace qor
