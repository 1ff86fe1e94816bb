#pragma once

#include <string>
#include <string_view>

namespace qor {

// A text as the system's calls take and give it: wchar_t is UTF-16 there. It ends at an embedded zero, as for the
// system.
inline std::wstring system_text(std::u16string_view text) {
    return {text.begin(), text.end()};
}
inline std::u16string from_system_text(std::wstring_view text) {
    return {text.begin(), text.end()};
}

}  // namespace qor
