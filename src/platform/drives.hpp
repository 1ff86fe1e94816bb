#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// With the codes that Windows gives to the kinds of drives.
enum class DriveKind : std::int32_t { unknown, no_root_directory, removable, fixed, remote, cd_rom, ram_disk };

// In bytes.
struct DriveSpace {
    std::uint64_t available = 0;  // to this user
    std::uint64_t total = 0;
    std::uint64_t free = 0;
};

// What a file system can do, with the bits that Windows gives to it.
namespace file_system_flags {
inline constexpr std::uint32_t case_sensitive_search = 0x1;
inline constexpr std::uint32_t case_preserved_names = 0x2;
inline constexpr std::uint32_t unicode_on_disk = 0x4;
inline constexpr std::uint32_t read_only_volume = 0x80000;
}  // namespace file_system_flags

struct Volume {
    std::u16string label;
    std::uint32_t serial_number = 0;  // 0 if it has none
    std::int32_t max_filename_length = 0;
    std::uint32_t flags = 0;
    std::u16string file_system;  // empty if the system does not tell, as of a root that is no mount of its own
};

// The machine's drives by their roots, such as "C:\". No member throws.
// Where the system has no letters, C is the root file system, and D to Z are the volumes mounted below /media,
// /run/media and /mnt in the order in which they were mounted.
class Drives {
  public:
    virtual ~Drives() = default;

    virtual DriveKind kind(std::u16string_view root) const = 0;
    virtual std::optional<DriveSpace> space(std::u16string_view root) const = 0;
    virtual std::optional<Volume> volume(std::u16string_view root) const = 0;
    // An empty label takes the label away. False if the volume keeps the one it had.
    virtual bool set_label(std::u16string_view root, std::u16string_view label) = 0;
    // The root of the drive that the current folder lies on.
    virtual std::u16string current_root() const = 0;
};

Drives& system_drives();

}  // namespace qor
