#pragma once

#include <windows.h>

#include <string>

#include "platform/windows/registry_settings_store.hpp"

namespace qor::test {

// The system's settings store with nothing in it.
struct FreshStore {
    std::u16string path = u"Software\\QOR Plus Tests\\" + [] {
        const std::string id = std::to_string(GetCurrentProcessId());
        return std::u16string(id.begin(), id.end());
    }();
    RegistrySettingsStore store{path};
    RegistrySettingsStore another{path};  // of the same settings

    FreshStore() { clear(); }
    FreshStore(const FreshStore&) = delete;
    FreshStore& operator=(const FreshStore&) = delete;
    ~FreshStore() { clear(); }

  private:
    void clear() const { RegDeleteTreeW(HKEY_CURRENT_USER, std::wstring(path.begin(), path.end()).c_str()); }
};

}  // namespace qor::test
