#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

struct Mount {
    std::filesystem::path folder;
    std::string device;
    std::string type;  // of the file system
    bool is_read_only = false;
};

// The system's table in its order, the oldest mount first. Empty for a file that cannot be read.
std::vector<Mount> read_mount_table(const std::filesystem::path& table = "/proc/self/mounts");

// A mounted file system that a drive's letter stands for.
struct LetteredMount {
    char16_t letter;
    Mount mount;
};

// The root file system first, as C. Of several mounts on one folder only the last can be reached.
std::vector<LetteredMount> lettered_mounts(const std::vector<Mount>& table);

// Whether the folder is the parent or lies below it.
bool lies_in(const std::filesystem::path& folder, const std::filesystem::path& parent);

// The mount of the letter that begins the path, in either case; nothing if no colon follows or no drive is there.
std::optional<Mount> mount_of_drive(std::u16string_view path);

}  // namespace qor
