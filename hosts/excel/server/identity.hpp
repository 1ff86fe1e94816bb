#pragma once

#include <guiddef.h>

// By what the system knows the server. The identifiers never change; the type library's version is the product's.
namespace qor::excel {

inline constexpr GUID class_id{0xC0BF0D5E, 0x7B1A, 0x4B7C, {0x9E, 0x35, 0x4E, 0x0C, 0x2D, 0x7F, 0x61, 0xA8}};
inline constexpr GUID library_id{0x6A2F5C41, 0x9D3E, 0x4E08, {0x8B, 0x17, 0xD2, 0x5A, 0x90, 0x3C, 0x7E, 0x14}};
inline constexpr GUID members_id{0x1F84B7A9, 0x52C6, 0x4D1B, {0xA0, 0x6D, 0x83, 0xE1, 0x4F, 0x2B, 0x95, 0xC3}};

inline constexpr const wchar_t* class_name = L"QORPlus.CCom";
inline constexpr const wchar_t* class_name_with_version = L"QORPlus.CCom.2";
inline constexpr const wchar_t* class_title = L"QOR Plus";

}  // namespace qor::excel
