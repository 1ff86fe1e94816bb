#include "platform/system_information.hpp"

#include <windows.h>
// After windows.h, on which it stands.
#include <winnetwk.h>

#include <array>

#include "platform/windows/registry_key.hpp"
#include "platform/windows/system_text.hpp"

namespace qor {
namespace {

// A folder by one of the system's calls that fill a buffer and answer the length.
std::u16string folder_by(UINT(WINAPI* ask)(LPWSTR, UINT)) {
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = ask(folder.data(), static_cast<UINT>(folder.size()));
    return length < folder.size() ? from_system_text({folder.data(), length}) : std::u16string();
}

class WindowsSystemInformation final : public SystemInformation {
  public:
    std::u16string user_name() const override {
        std::array<wchar_t, 256> name{};
        auto length = static_cast<DWORD>(name.size());
        if (WNetGetUserW(nullptr, name.data(), &length) != NO_ERROR) return {};
        return from_system_text(name.data());
    }

    std::u16string machine_name() const override {
        std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
        auto length = static_cast<DWORD>(name.size());
        if (!GetComputerNameW(name.data(), &length)) return {};
        return from_system_text({name.data(), length});
    }

    SystemVersion version() const override {
        OSVERSIONINFOW told{};
        told.dwOSVersionInfoSize = sizeof(told);
        if (!GetVersionExW(&told)) return {};
        return {.platform = static_cast<SystemPlatform>(told.dwPlatformId),
                .major = static_cast<std::int32_t>(told.dwMajorVersion),
                .minor = static_cast<std::int32_t>(told.dwMinorVersion),
                .build = static_cast<std::int32_t>(told.dwBuildNumber)};
    }

    std::u16string system_folder() const override { return folder_by(GetSystemDirectoryW); }
    std::u16string windows_folder() const override { return folder_by(GetWindowsDirectoryW); }

    std::optional<std::u16string> machine_setting(std::u16string_view key, std::u16string_view name) const override {
        const RegistryKey opened = RegistryKey::open(HKEY_LOCAL_MACHINE, key, KEY_READ);
        return opened ? opened.text(name) : std::nullopt;
    }
};

}  // namespace

const SystemInformation& system_information() {
    static const WindowsSystemInformation information;
    return information;
}

}  // namespace qor
