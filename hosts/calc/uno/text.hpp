#pragma once

#include <rtl/ustring.hxx>
#include <string>
#include <string_view>

namespace qor::calc {

// Both sides hold UTF-16; only the type of the unit differs.
inline rtl::OUString to_uno(std::u16string_view text) {
    return {reinterpret_cast<const sal_Unicode*>(text.data()), static_cast<sal_Int32>(text.size())};
}

inline std::u16string_view view_of(const rtl::OUString& text) {
    return {reinterpret_cast<const char16_t*>(text.getStr()), static_cast<std::size_t>(text.getLength())};
}

inline std::u16string from_uno(const rtl::OUString& text) {
    return std::u16string(view_of(text));
}

}  // namespace qor::calc
