#include "platform/drives.hpp"

#include <doctest/doctest.h>
#include <sys/statvfs.h>

#include "platform/posix/block_device.hpp"
#include "platform/posix/mount_table.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;

namespace {

Mount mounted_on(const char* folder, const char* type = "vfat") {
    return {.folder = folder, .device = "/dev/sdb1", .type = type};
}

}  // namespace

TEST_CASE("the mount table is read with its escapes and options") {
    const test::TemporaryFolder folder;
    test::put(folder.path / "mounts",
              "/dev/sda2 / ext4 rw,relatime 0 0\n"
              "/dev/sdb1 /media/ann/My\\040Stick vfat ro,nosuid 0 0\n"
              "server:/share /mnt/share nfs4 rw,errors=remount-ro 0 0\n");
    const std::vector<Mount> mounts = read_mount_table(folder.path / "mounts");
    REQUIRE(mounts.size() == 3);
    CHECK(mounts[0].folder == "/");
    CHECK(mounts[0].type == "ext4");
    CHECK_FALSE(mounts[0].is_read_only);
    CHECK(mounts[1].folder == "/media/ann/My Stick");
    CHECK(mounts[1].device == "/dev/sdb1");
    CHECK(mounts[1].is_read_only);
    CHECK(mounts[2].device == "server:/share");
    CHECK_FALSE(mounts[2].is_read_only);
    CHECK(read_mount_table(folder.path / "absent").empty());
}

TEST_CASE("letters from D on stand for the mounted volumes in their order") {
    const auto drives = lettered_mounts({mounted_on("/proc", "proc"), mounted_on("/", "ext4"), mounted_on("/home"),
                                         mounted_on("/mnt"), mounted_on("/media/ann/b"), mounted_on("/mediation"),
                                         mounted_on("/run/media/ann/a"), mounted_on("/run")});
    REQUIRE(drives.size() == 4);
    CHECK(drives[0].letter == u'C');
    CHECK(drives[0].mount.type == "ext4");
    CHECK(drives[1].letter == u'D');
    CHECK(drives[1].mount.folder == "/mnt");
    CHECK(drives[2].letter == u'E');
    CHECK(drives[2].mount.folder == "/media/ann/b");
    CHECK(drives[3].letter == u'F');
    CHECK(drives[3].mount.folder == "/run/media/ann/a");
}

TEST_CASE("of several mounts on one folder the last one counts") {
    const auto drives = lettered_mounts({mounted_on("/mnt/a", "autofs"), mounted_on("/mnt/b"), mounted_on("/mnt/a")});
    REQUIRE(drives.size() == 3);
    CHECK(drives[1].mount.folder == "/mnt/a");
    CHECK(drives[1].mount.type == "vfat");
}

TEST_CASE("letters end with Z, and C is there even without a table") {
    std::vector<Mount> table(30, mounted_on("/mnt/"));
    for (std::size_t place = 0; place < table.size(); ++place) table[place].folder += std::to_string(place);
    const auto drives = lettered_mounts(table);
    REQUIRE(drives.size() == 24);
    CHECK(drives.back().letter == u'Z');
    REQUIRE(lettered_mounts({}).size() == 1);
    CHECK(lettered_mounts({}).front().letter == u'C');
    CHECK(lettered_mounts({}).front().mount.folder == "/");
}

TEST_CASE("a device's name is that of the link to it, with its escapes undone") {
    const test::TemporaryFolder folder;
    test::put(folder.path / "sdb1", "");
    test::put(folder.path / "sdb2", "");
    std::filesystem::create_directory(folder.path / "by-label");
    std::filesystem::create_symlink("../sdb1", folder.path / "by-label" / "My\\x20Stick\\x2f1");
    std::filesystem::create_symlink("../gone", folder.path / "by-label" / "Gone");
    CHECK(device_name_in(folder.path / "by-label", folder.path / "sdb1") == "My Stick/1");
    CHECK(device_name_in(folder.path / "by-label", folder.path / "sdb2").empty());
    CHECK(device_name_in(folder.path / "by-label", folder.path / "absent").empty());
    CHECK(device_name_in(folder.path / "absent", folder.path / "sdb1").empty());
}

TEST_CASE("a serial number is the end of a volume's identifier") {
    CHECK(serial_number_of("12AB-34CD") == 0x12AB34CD);
    CHECK(serial_number_of("01D2A3B4C5D6E7F8") == 0xC5D6E7F8);
    CHECK(serial_number_of("0fc63daf-8483-4772-8e79-3d69d8477de4") == 0xD8477DE4);
    CHECK(serial_number_of("2023-12-06-11-22-33-00") == 0x11223300);
    CHECK(serial_number_of("") == 0);
    CHECK(serial_number_of("12AB-34C") == 0);
    CHECK(serial_number_of("not-a-number") == 0);
}

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
    CHECK_FALSE(volume->file_system.empty());
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
