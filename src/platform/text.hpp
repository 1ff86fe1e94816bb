#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qor {

// Bytes and code units that do not make a code point come out as U+FFFD, one for each ill-formed part.
std::string to_utf8(std::u16string_view text);
std::u16string from_utf8(std::string_view bytes);

constexpr bool is_surrogate(char32_t code_point) {
    return code_point >= 0xD800 && code_point <= 0xDFFF;
}

// The code point at `position`, which moves behind it. A surrogate without its partner is given as it is.
char32_t take_code_point(std::u16string_view text, std::size_t& position);
void append_code_point(std::u16string& text, char32_t code_point);

// One code point for one, without regard to locale: a letter whose other case has several stays as it is.
std::u16string to_lower(std::u16string_view text);
std::u16string to_upper(std::u16string_view text);

// Equal when the upper case is equal, which is how the registry and the hosts compare names.
bool equal_ignoring_case(std::u16string_view left, std::u16string_view right);

}  // namespace qor
