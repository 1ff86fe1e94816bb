#include "platform/drives.hpp"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "platform/posix/block_device.hpp"
#include "platform/posix/file_descriptor.hpp"
#include "platform/posix/mount_table.hpp"
#include "platform/text.hpp"

namespace qor {
namespace {

struct KindRow {
    std::string_view type;
    DriveKind kind;
};

constexpr std::array kind_rows{
    KindRow{"nfs", DriveKind::remote},     KindRow{"nfs4", DriveKind::remote}, KindRow{"cifs", DriveKind::remote},
    KindRow{"smb3", DriveKind::remote},    KindRow{"9p", DriveKind::remote},   KindRow{"fuse.sshfs", DriveKind::remote},
    KindRow{"iso9660", DriveKind::cd_rom}, KindRow{"udf", DriveKind::cd_rom},  KindRow{"tmpfs", DriveKind::ram_disk},
    KindRow{"ramfs", DriveKind::ram_disk},
};

constexpr std::array<std::string_view, 6> types_without_letter_case{"vfat", "msdos", "exfat",
                                                                    "ntfs", "ntfs3", "fuseblk"};

std::uint32_t flags_of(const Mount& mount) {
    namespace flags = file_system_flags;
    const bool minds_case = std::ranges::find(types_without_letter_case, mount.type) == types_without_letter_case.end();
    return flags::case_preserved_names | flags::unicode_on_disk | (minds_case ? flags::case_sensitive_search : 0) |
           (mount.is_read_only ? flags::read_only_volume : 0);
}

FileDescriptor opened(const Mount& mount) {
    return FileDescriptor(::open(mount.folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

// From the file system itself or, where it does not tell, from the device manager, which learns of a change later.
std::string label_of(const Mount& mount) {
    std::array<char, FSLABEL_MAX + 1> label{};
    const FileDescriptor folder = opened(mount);
    if (folder && ::ioctl(folder.number(), FS_IOC_GETFSLABEL, label.data()) == 0) return label.data();
    return device_name_in("/dev/disk/by-label", mount.device);
}

class PosixDrives final : public Drives {
  public:
    DriveKind kind(std::u16string_view root) const override {
        const std::optional<Mount> mount = mount_of_drive(root);
        if (!mount) return DriveKind::no_root_directory;
        const auto* const row = std::ranges::find(kind_rows, mount->type, &KindRow::type);
        if (row != kind_rows.end()) return row->kind;
        return is_removable(mount->device) ? DriveKind::removable : DriveKind::fixed;
    }

    std::optional<DriveSpace> space(std::u16string_view root) const override {
        const std::optional<Mount> mount = mount_of_drive(root);
        struct statvfs figures {};
        if (!mount || ::statvfs(mount->folder.c_str(), &figures) != 0) return std::nullopt;
        return DriveSpace{.available = std::uint64_t{figures.f_bavail} * figures.f_frsize,
                          .total = std::uint64_t{figures.f_blocks} * figures.f_frsize,
                          .free = std::uint64_t{figures.f_bfree} * figures.f_frsize};
    }

    std::optional<Volume> volume(std::u16string_view root) const override {
        const std::optional<Mount> mount = mount_of_drive(root);
        struct statvfs figures {};
        if (!mount || ::statvfs(mount->folder.c_str(), &figures) != 0) return std::nullopt;
        return Volume{.label = from_utf8(label_of(*mount)),
                      .serial_number = serial_number_of(device_name_in("/dev/disk/by-uuid", mount->device)),
                      .max_filename_length = static_cast<std::int32_t>(figures.f_namemax),
                      .flags = flags_of(*mount),
                      .file_system = from_utf8(mount->type)};
    }

    bool set_label(std::u16string_view root, std::u16string_view label) override {
        const std::optional<Mount> mount = mount_of_drive(root);
        const std::string bytes = to_utf8(label);
        std::array<char, FSLABEL_MAX> text{};
        if (!mount || bytes.size() >= text.size()) return false;
        std::ranges::copy(bytes, text.begin());
        const FileDescriptor folder = opened(*mount);
        return folder && ::ioctl(folder.number(), FS_IOC_SETFSLABEL, text.data()) == 0;
    }

    std::u16string current_root() const override {
        std::error_code refused;
        const std::filesystem::path folder = std::filesystem::current_path(refused);
        char16_t letter = u'C';
        std::size_t longest = 0;
        for (const LetteredMount& drive : lettered_mounts(read_mount_table())) {
            const std::string& mounted = drive.mount.folder.native();
            if (!lies_in(folder, drive.mount.folder) || mounted.size() <= longest) continue;
            longest = mounted.size();
            letter = drive.letter;
        }
        return letter + std::u16string(u":\\");
    }
};

}  // namespace

Drives& system_drives() {
    static PosixDrives drives;
    return drives;
}

}  // namespace qor
