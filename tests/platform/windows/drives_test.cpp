#include "platform/drives.hpp"

#include <doctest/doctest.h>
#include <windows.h>

#include <array>

using namespace qor;

TEST_CASE("drives: the system's drive has space and a file system, and no drive has none") {
    const Drives& drives = system_drives();
    CHECK(drives.kind(u"C:\\") == DriveKind::fixed);
    const auto space = drives.space(u"C:\\");
    REQUIRE(space);
    CHECK(space->total >= space->free);
    CHECK(space->free > 0);
    CHECK(drives.volume(u"C:\\"));
    CHECK(drives.kind(u"1:\\") == DriveKind::no_root_directory);
    CHECK_FALSE(drives.space(u"1:\\"));
    CHECK_FALSE(drives.volume(u"1:\\"));
}

TEST_CASE("drives: the current folder's drive is the first one that is asked for") {
    std::array<wchar_t, MAX_PATH> before{};
    REQUIRE(GetCurrentDirectoryW(MAX_PATH, before.data()) > 0);
    REQUIRE(SetCurrentDirectoryW(L"C:\\windows"));
    CHECK(system_drives().current_root() == u"C:\\");
    SetCurrentDirectoryW(before.data());
}
