#pragma once

#include <new>
#include <string>
#include <string_view>

#include "hosts/excel/com/ole.hpp"

namespace qor::excel {

// A text as automation has it, null for none. The caller frees it or hands it on.
inline BSTR to_ole_text(std::u16string_view text) {
    const BSTR result = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
    if (!result) throw std::bad_alloc();
    for (std::size_t place = 0; place < text.size(); ++place) result[place] = static_cast<wchar_t>(text[place]);
    return result;
}

// With the zeros that it may hold.
inline std::u16string from_ole_text(const wchar_t* text, std::size_t length) {
    return {text, text + length};
}
inline std::u16string from_ole_text(BSTR text) {
    return from_ole_text(text, SysStringLen(text));
}

}  // namespace qor::excel
