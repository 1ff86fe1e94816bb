#include "platform/letter.hpp"

#include <windows.h>

#include <string>

#include "platform/text.hpp"

namespace qor {
namespace {

char32_t mapped(char32_t code_point, DWORD mapping) {
    std::u16string letter;
    append_code_point(letter, code_point);
    const std::wstring given(letter.begin(), letter.end());
    wchar_t found[2] = {};
    const int length = LCMapStringEx(LOCALE_NAME_INVARIANT, mapping, given.data(), static_cast<int>(given.size()),
                                     found, 2, nullptr, nullptr, 0);
    if (length != static_cast<int>(given.size())) return code_point;
    std::size_t position = 0;
    return take_code_point(std::u16string(found, found + length), position);
}

}  // namespace

// The linguistic mapping knows the letters that share another case, such as the final sigma.
char32_t upper_letter(char32_t code_point) {
    return mapped(code_point, LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING);
}

char32_t lower_letter(char32_t code_point) {
    return mapped(code_point, LCMAP_LOWERCASE | LCMAP_LINGUISTIC_CASING);
}

}  // namespace qor
