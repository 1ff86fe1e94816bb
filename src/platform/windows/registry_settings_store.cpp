#include "platform/windows/registry_settings_store.hpp"

#include <algorithm>
#include <utility>

#include "platform/windows/registry_key.hpp"
#include "platform/windows/system_text.hpp"

namespace qor {

RegistrySettingsStore::RegistrySettingsStore(std::u16string path) : path_(std::move(path)) {}

std::u16string RegistrySettingsStore::path_of(std::u16string_view section) const {
    std::u16string path = path_;
    while (!section.empty()) {
        const std::size_t end = std::min(section.find(u'\\'), section.size());
        if (end > 0) path.append(u"\\").append(section.substr(0, end));
        section.remove_prefix(std::min(end + 1, section.size()));
    }
    return path;
}

std::optional<std::u16string> RegistrySettingsStore::read(std::u16string_view section, std::u16string_view name) const {
    const RegistryKey key = RegistryKey::open(HKEY_CURRENT_USER, path_of(section), KEY_READ);
    return key ? key.text(name) : std::nullopt;
}

bool RegistrySettingsStore::write(std::u16string_view section, std::u16string_view name, std::u16string_view value) {
    const RegistryKey key = RegistryKey::create(HKEY_CURRENT_USER, path_of(section));
    return key && key.set_text(name, value);
}

bool RegistrySettingsStore::erase(std::u16string_view section, std::u16string_view name) {
    const RegistryKey key = RegistryKey::open(HKEY_CURRENT_USER, path_of(section), KEY_ALL_ACCESS);
    return key && RegDeleteValueW(key.get(), system_text(name).c_str()) == ERROR_SUCCESS;
}

bool RegistrySettingsStore::erase_section(std::u16string_view section) {
    return RegDeleteKeyW(HKEY_CURRENT_USER, system_text(path_of(section)).c_str()) == ERROR_SUCCESS;
}

}  // namespace qor
