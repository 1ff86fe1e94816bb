#include "platform/posix/mount_table.hpp"

#include <doctest/doctest.h>

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
