#include "platform/posix/block_device.hpp"

#include <doctest/doctest.h>

#include "tests/support/temporary_folder.hpp"

using namespace qor;

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
