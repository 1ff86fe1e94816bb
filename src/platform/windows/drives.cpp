#include "platform/drives.hpp"

#include <windows.h>

#include "platform/windows/system_text.hpp"

namespace qor {
namespace {

class WindowsDrives final : public Drives {
  public:
    DriveKind kind(std::u16string_view root) const override {
        const UINT code = GetDriveTypeW(system_text(root).c_str());
        return code <= static_cast<UINT>(DriveKind::ram_disk) ? static_cast<DriveKind>(code) : DriveKind::unknown;
    }

    std::optional<DriveSpace> space(std::u16string_view root) const override {
        ULARGE_INTEGER available{};
        ULARGE_INTEGER total{};
        ULARGE_INTEGER free{};
        if (!GetDiskFreeSpaceExW(system_text(root).c_str(), &available, &total, &free)) return std::nullopt;
        return DriveSpace{.available = available.QuadPart, .total = total.QuadPart, .free = free.QuadPart};
    }

    std::optional<Volume> volume(std::u16string_view root) const override {
        wchar_t label[MAX_PATH + 1] = {};
        wchar_t file_system[MAX_PATH + 1] = {};
        DWORD serial_number = 0;
        DWORD longest_name = 0;
        DWORD flags = 0;
        if (!GetVolumeInformationW(system_text(root).c_str(), label, MAX_PATH + 1, &serial_number, &longest_name,
                                   &flags, file_system, MAX_PATH + 1))
            return std::nullopt;
        return Volume{.label = from_system_text(label),
                      .serial_number = serial_number,
                      .max_filename_length = static_cast<std::int32_t>(longest_name),
                      .flags = flags,
                      .file_system = from_system_text(file_system)};
    }

    bool set_label(std::u16string_view root, std::u16string_view label) override {
        const std::wstring text = system_text(label);
        return SetVolumeLabelW(system_text(root).c_str(), text.empty() ? nullptr : text.c_str()) != 0;
    }

    std::u16string current_root() const override {
        wchar_t folder[MAX_PATH + 1] = {};
        const DWORD length = GetCurrentDirectoryW(MAX_PATH + 1, folder);
        return length == 0 || length > MAX_PATH ? std::u16string() : from_system_text(folder).substr(0, 3);
    }
};

}  // namespace

Drives& system_drives() {
    static WindowsDrives drives;
    return drives;
}

}  // namespace qor
