#include <doctest/doctest.h>
#include <windows.h>

#include <array>

#include "platform/drives.hpp"
#include "platform/system_information.hpp"
#include "platform/windows/system_text.hpp"

using namespace qor;

TEST_CASE("system: the version, the folders and the names are those that the system tells") {
    const SystemInformation& system = system_information();
    CHECK(system.version().platform == SystemPlatform::windows_nt);
    CHECK(system.version().major >= 5);
    CHECK(system.version().build > 0);
    CHECK(system.windows_folder() == u"C:\\windows");
    CHECK(system.system_folder() == u"C:\\windows\\system32");
    CHECK_FALSE(system.user_name().empty());
    CHECK_FALSE(system.machine_name().empty());
    CHECK(system.machine_name().size() <= 15);
}

TEST_CASE("system: a machine's setting is a text of its registry") {
    const SystemInformation& system = system_information();
    constexpr std::u16string_view key = u"Software\\Microsoft\\Windows NT\\CurrentVersion";
    const auto version = system.machine_setting(key, u"CurrentVersion");
    REQUIRE(version);
    CHECK_FALSE(version->empty());
    CHECK_FALSE(system.machine_setting(key, u"no such value"));
    CHECK_FALSE(system.machine_setting(u"Software\\no such key", u""));
    CHECK_FALSE(system.machine_setting(key, u"InstallDate"));
}

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
