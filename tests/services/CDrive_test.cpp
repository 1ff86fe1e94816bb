#include "services/CDrive.hpp"

#include <doctest/doctest.h>

#include <filesystem>
#include <map>

#include "platform/text.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;

namespace {

class FakeDrives final : public Drives {
  public:
    std::map<std::u16string, DriveKind, std::less<>> kinds;
    std::map<std::u16string, DriveSpace, std::less<>> spaces;
    std::map<std::u16string, Volume, std::less<>> volumes;
    bool takes_labels = true;

    DriveKind kind(std::u16string_view root) const override {
        const auto found = kinds.find(root);
        return found == kinds.end() ? DriveKind::no_root_directory : found->second;
    }
    std::optional<DriveSpace> space(std::u16string_view root) const override {
        const auto found = spaces.find(root);
        return found == spaces.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<Volume> volume(std::u16string_view root) const override {
        const auto found = volumes.find(root);
        return found == volumes.end() ? std::nullopt : std::optional(found->second);
    }
    bool set_label(std::u16string_view root, std::u16string_view label) override {
        if (takes_labels) volumes.find(root)->second.label = label;
        return takes_labels;
    }
    std::u16string current_root() const override { return u"C:\\"; }
};

struct Machine {
    FakeDrives drives;

    Machine() {
        drives.kinds = {{u"C:\\", DriveKind::fixed}, {u"E:\\", DriveKind::cd_rom}};
        drives.spaces[u"C:\\"] = {.available = 3000, .total = 8'000'000'000'000, .free = 4000};
        drives.volumes[u"C:\\"] = {.label = u"System",
                                   .serial_number = 0x89ABCDEF,
                                   .max_filename_length = 255,
                                   .flags = 0x7,
                                   .file_system = u"NTFS"};
    }
};

std::string size_text(std::uint64_t size, bool shows_bytes = false) {
    return to_utf8(CDrive::FormatSize(size, shows_bytes));
}

}  // namespace

TEST_CASE_FIXTURE(Machine, "a drive is the current folder's at first and tells what is known of it") {
    const CDrive drive(drives);
    CHECK(drive.Drive() == u"C:\\");
    CHECK(drive.Present());
    CHECK(drive.AvailableSpace() == 3000);
    CHECK(drive.FreeSpace() == 4000);
    CHECK(drive.TotalSpace() == 8'000'000'000'000);
    CHECK(drive.DriveType() == 3);
    CHECK((drive.DriveTypeEx() == u"Fixed"));
    CHECK(drive.Label() == u"System");
    CHECK(drive.FileSystem() == u"NTFS");
    CHECK(drive.MaxFilenameLength() == 255);
    CHECK(drive.FileSystemFlags() == 7);
    CHECK(drive.FileSystemFlag(2));
    CHECK_FALSE(drive.FileSystemFlag(8));
}

TEST_CASE_FIXTURE(Machine, "a drive is chosen by the first character of a text") {
    CDrive drive(drives);
    drive.Drive(u"e");
    CHECK(drive.Drive() == u"E:\\");
    CHECK((drive.DriveTypeEx() == u"CD-ROM"));
    drive.Drive(u"c:\\windows");
    CHECK(drive.Drive() == u"C:\\");
    CHECK(drive.Present());
    drive.Drive(u"");
    CHECK(drive.Drive() == u":\\");
    CHECK_FALSE(drive.Present());
}

TEST_CASE_FIXTURE(Machine, "a drive that cannot be read has no space and keeps what was known of a volume") {
    CDrive drive(drives);
    drive.Drive(u"E");
    CHECK_FALSE(drive.Present());
    CHECK(drive.AvailableSpace() == 0);
    CHECK(drive.FreeSpace() == 0);
    CHECK(drive.TotalSpace() == 0);
    CHECK(drive.Label() == u"System");
    CHECK(drive.SerialNumberEx() == u"89AB-CDEF");

    drives.volumes.clear();
    drives.spaces.clear();
    const CDrive unread(drives);
    CHECK_FALSE(unread.Present());
    CHECK(unread.Label().empty());
    CHECK(unread.FileSystem().empty());
    CHECK(unread.MaxFilenameLength() == 0);
    CHECK(unread.SerialNumber() == u"0");
}

TEST_CASE_FIXTURE(Machine, "free space is read at each call, the whole at a refresh") {
    CDrive drive(drives);
    drives.spaces[u"C:\\"] = {.available = 30, .total = 80, .free = 40};
    CHECK(drive.AvailableSpace() == 30);
    CHECK(drive.FreeSpace() == 40);
    CHECK(drive.TotalSpace() == 8'000'000'000'000);
    drive.Refresh();
    CHECK(drive.TotalSpace() == 80);
    drives.spaces.clear();
    CHECK(drive.AvailableSpace() == 0);
    CHECK(drive.Present());
    drive.Refresh();
    CHECK_FALSE(drive.Present());
    CHECK(drive.TotalSpace() == 0);
}

TEST_CASE_FIXTURE(Machine, "a serial number is signed as a number and eight digits as a text") {
    const auto drive_with = [&](std::uint32_t serial_number) {
        drives.volumes[u"C:\\"].serial_number = serial_number;
        return CDrive(drives);
    };
    CHECK(drive_with(0x89ABCDEF).SerialNumber() == u"-1985229329");
    CHECK(drive_with(0x89ABCDEF).SerialNumberEx() == u"89AB-CDEF");
    CHECK(drive_with(10).SerialNumber() == u"10");
    CHECK(drive_with(10).SerialNumberEx() == u"0000-000A");
    CHECK(drive_with(0).SerialNumber() == u"0");
    CHECK(drive_with(0).SerialNumberEx().empty());
}

TEST_CASE_FIXTURE(Machine, "every kind of drive has a name") {
    const auto name_of = [&](int code) {
        drives.kinds[u"C:\\"] = static_cast<DriveKind>(code);
        const CDrive drive(drives);
        CHECK(drive.DriveType() == code);
        return to_utf8(drive.DriveTypeEx());
    };
    CHECK(name_of(0) == "Unknown");
    CHECK(name_of(1) == "No Root Directory");
    CHECK(name_of(2) == "Removable");
    CHECK(name_of(3) == "Fixed");
    CHECK(name_of(4) == "Remote");
    CHECK(name_of(5) == "CD-ROM");
    CHECK(name_of(6) == "RAM Disk");
}

TEST_CASE_FIXTURE(Machine, "a label that the volume takes is read again, one that it refuses changes nothing") {
    CDrive drive(drives);
    drives.volumes[u"C:\\"].serial_number = 5;
    drives.takes_labels = false;
    drive.Label(u"Data");
    CHECK(drive.Label() == u"System");
    CHECK(drive.SerialNumber() == u"-1985229329");
    drives.takes_labels = true;
    drive.Label(u"Data");
    CHECK(drive.Label() == u"Data");
    CHECK(drive.SerialNumber() == u"5");
    drive.Label(u"");
    CHECK(drive.Label().empty());
}

TEST_CASE("a size below a kilobyte is in bytes") {
    CHECK(size_text(0) == "0 bytes");
    CHECK(size_text(1) == "1 byte");
    CHECK(size_text(2) == "2 bytes");
    CHECK(size_text(1023) == "1,023 bytes");
    CHECK(size_text(1023, true) == "1,023 bytes");
}

TEST_CASE("a larger size is in the unit that leaves few digits") {
    CHECK(size_text(1024) == "1.00 KB");
    CHECK(size_text(1536) == "1.50 KB");
    CHECK(size_text(10'239) == "10.00 KB");
    CHECK(size_text(10'240) == "10.0 KB");
    CHECK(size_text(102'400) == "100 KB");
    CHECK(size_text(1'023'999) == "1000 KB");
    CHECK(size_text(1'024'000) == "0.98 MB");
    CHECK(size_text(1'048'576) == "1.00 MB");
    CHECK(size_text(10'240'000) == "9.8 MB");
    CHECK(size_text(102'400'000) == "98 MB");
    CHECK(size_text(1'024'000'000) == "0.95 GB");
    CHECK(size_text(10'239'999'999) == "9.54 GB");
}

TEST_CASE("a size may show its bytes, and from 10,000,000 KB on shows nothing else") {
    CHECK(size_text(1024, true) == "1.00 KB (1,024 bytes)");
    CHECK(size_text(1'048'576, true) == "1.00 MB (1,048,576 bytes)");
    CHECK(size_text(10'240'000'000).empty());
    CHECK(size_text(10'240'000'000, true) == " (10,240,000,000 bytes)");
}

TEST_CASE("the machine's own drive answers") {
    CDrive drive;
    CHECK(drive.Present());
    drive.Drive(u"c");
    CHECK(drive.Drive() == u"C:\\");
    REQUIRE(drive.Present());
    CHECK(drive.TotalSpace() >= drive.FreeSpace());
    CHECK(drive.FreeSpace() >= drive.AvailableSpace());
    const std::optional<Volume> volume = system_drives().volume(u"C:\\");
    REQUIRE(volume);
    CHECK(drive.FileSystem() == volume->file_system);
    CHECK(drive.MaxFilenameLength() > 0);
}

TEST_CASE("the current folder is set with either separator, and one that is not there changes nothing") {
    const std::filesystem::path before = std::filesystem::current_path();
    const test::TemporaryFolder folder;
    const std::filesystem::path temporary = std::filesystem::canonical(folder.path);
    std::u16string path = temporary.u16string();
    CDrive::SetCurrDir(path);
    CHECK(std::filesystem::current_path() == temporary);
    std::filesystem::current_path(before);
    for (char16_t& c : path) {
        if (c == u'/') c = u'\\';
    }
    CDrive::SetCurrDir(path);
    CHECK(std::filesystem::current_path() == temporary);
    CDrive::SetCurrDir(path + u"\\no such folder");
    CHECK(std::filesystem::current_path() == temporary);
    std::filesystem::current_path(before);
}
