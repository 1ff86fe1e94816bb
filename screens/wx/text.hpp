#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

#include "platform/text.hpp"

namespace qor::wx {

inline wxString to_wx(std::u16string_view text) {
    return wxString::FromUTF8(to_utf8(text));
}

inline std::u16string from_wx(const wxString& text) {
    return from_utf8(text.utf8_string());
}

}  // namespace qor::wx
