#include "platform/posix/mount_table.hpp"

#include <mntent.h>

#include <algorithm>
#include <array>
#include <memory>

namespace qor {
namespace {

struct CloseTable {
    void operator()(FILE* table) const { ::endmntent(table); }
};

// Where people's volumes are mounted, by the desktop or by hand.
bool is_for_volumes(const std::filesystem::path& folder) {
    constexpr std::array<std::string_view, 3> parents{"/media", "/run/media", "/mnt"};
    return std::ranges::any_of(parents, [&](std::string_view parent) { return lies_in(folder, parent); });
}

}  // namespace

std::vector<Mount> read_mount_table(const std::filesystem::path& table) {
    const std::unique_ptr<FILE, CloseTable> opened(::setmntent(table.c_str(), "re"));
    std::vector<Mount> mounts;
    if (!opened) return mounts;
    mntent entry{};
    std::array<char, 8192> text{};
    while (::getmntent_r(opened.get(), &entry, text.data(), static_cast<int>(text.size()))) {
        mounts.push_back({.folder = entry.mnt_dir,
                          .device = entry.mnt_fsname,
                          .type = entry.mnt_type,
                          .is_read_only = ::hasmntopt(&entry, "ro") != nullptr});
    }
    return mounts;
}

std::vector<LetteredMount> lettered_mounts(const std::vector<Mount>& table) {
    std::vector<LetteredMount> drives{{u'C', {.folder = "/", .device = {}, .type = {}}}};
    for (const Mount& mount : table) {
        const auto drive = std::ranges::find(
            drives, mount.folder, [](const LetteredMount& one) -> const auto& { return one.mount.folder; });
        if (drive != drives.end()) {
            drive->mount = mount;
        } else if (is_for_volumes(mount.folder) && drives.back().letter < u'Z') {
            drives.push_back({static_cast<char16_t>(drives.back().letter + 1), mount});
        }
    }
    return drives;
}

bool lies_in(const std::filesystem::path& folder, const std::filesystem::path& parent) {
    return std::ranges::mismatch(parent, folder).in1 == parent.end();
}

std::optional<Mount> mount_of_drive(std::u16string_view path) {
    if (path.size() < 2 || path[1] != u':') return std::nullopt;
    const char16_t letter = path[0] >= u'a' && path[0] <= u'z' ? static_cast<char16_t>(path[0] - u'a' + u'A') : path[0];
    for (LetteredMount& drive : lettered_mounts(read_mount_table())) {
        if (drive.letter == letter) return std::move(drive.mount);
    }
    return std::nullopt;
}

}  // namespace qor
