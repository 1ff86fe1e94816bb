#include "platform/windows/registry_key.hpp"

#include "platform/windows/system_text.hpp"

namespace qor {

RegistryKey RegistryKey::open(HKEY root, std::u16string_view path, REGSAM rights) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(root, system_text(path).c_str(), 0, rights, &key);
    return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

RegistryKey RegistryKey::create(HKEY root, std::u16string_view path) {
    HKEY key = nullptr;
    const LSTATUS status = RegCreateKeyExW(root, system_text(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                           KEY_WRITE, nullptr, &key, nullptr);
    return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

std::optional<std::u16string> RegistryKey::text(std::u16string_view name) const {
    const std::wstring value = system_text(name);
    DWORD type = 0;
    DWORD size = 0;  // in bytes, the closing zero included
    if (RegQueryValueExW(key_, value.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) return std::nullopt;
    if ((type != REG_SZ && type != REG_EXPAND_SZ) || size < sizeof(wchar_t)) return std::nullopt;
    std::wstring text(size / sizeof(wchar_t), L'\0');
    size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegQueryValueExW(key_, value.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()), &size) !=
        ERROR_SUCCESS)
        return std::nullopt;
    text.resize(size / sizeof(wchar_t));
    if (text.ends_with(L'\0')) text.pop_back();
    return from_system_text(text);
}

bool RegistryKey::set_text(std::u16string_view name, std::u16string_view value) const {
    const std::wstring text = system_text(value);
    return RegSetValueExW(key_, system_text(name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

}  // namespace qor
