#include "platform/drives.hpp"

#include <doctest/doctest.h>
#include <sys/statvfs.h>

#include "platform/posix/block_device.hpp"
#include "platform/posix/mount_table.hpp"
#include "platform/text.hpp"

using namespace qor;

TEST_CASE("C is the root file system") {
    struct statvfs figures {};
    REQUIRE(::statvfs("/", &figures) == 0);
    const Drives& drives = system_drives();
    const std::optional<DriveSpace> space = drives.space(u"C:\\");
    REQUIRE(space);
    CHECK(space->total == std::uint64_t{figures.f_blocks} * figures.f_frsize);
    CHECK(space->free <= space->total);
    CHECK(space->available <= space->free);
    const std::optional<Volume> volume = drives.volume(u"c:\\");
    REQUIRE(volume);
    CHECK(volume->max_filename_length == static_cast<std::int32_t>(figures.f_namemax));
    CHECK(to_utf8(volume->file_system) == lettered_mounts(read_mount_table()).front().mount.type);
    CHECK((volume->flags & file_system_flags::case_preserved_names) != 0);
    CHECK(drives.kind(u"C:\\") != DriveKind::no_root_directory);
    CHECK(drives.space(drives.current_root()).has_value());
}

TEST_CASE("what stands for no drive is none") {
    Drives& drives = system_drives();
    for (const auto* root : {u"1:\\", u"", u":\\", u"\\\\server", u"A:\\"}) {
        CHECK(drives.kind(root) == DriveKind::no_root_directory);
        CHECK_FALSE(drives.space(root));
        CHECK_FALSE(drives.volume(root));
        CHECK_FALSE(drives.set_label(root, u"Data"));
    }
    CHECK_FALSE(is_removable("/dev/no such device"));
}

TEST_CASE("a label that no volume can hold is refused") {
    CHECK_FALSE(system_drives().set_label(u"C:\\", std::u16string(300, u'x')));
}
