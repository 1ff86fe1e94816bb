#include "services/CDrive.hpp"

#include <array>
#include <filesystem>
#include <string>

#include "platform/files.hpp"
#include "platform/text.hpp"
#include "runtime/format.hpp"

namespace qor {
namespace {

constexpr std::array<std::u16string_view, 7> kind_names{
    u"Unknown", u"No Root Directory", u"Removable", u"Fixed", u"Remote", u"CD-ROM", u"RAM Disk",
};

constexpr std::uint64_t kilobyte = 1024;
constexpr std::uint64_t megabyte = 1024 * kilobyte;
constexpr std::uint64_t gigabyte = 1024 * megabyte;

struct SizeRow {
    std::uint64_t below_kilobytes;
    std::uint64_t unit;
    std::u16string_view pattern;
    std::u16string_view unit_name;
};

constexpr std::array size_rows{
    SizeRow{10, kilobyte, u"0.00", u" KB"},         SizeRow{100, kilobyte, u"0.0", u" KB"},
    SizeRow{1'000, kilobyte, u"0", u" KB"},         SizeRow{10'000, megabyte, u"0.00", u" MB"},
    SizeRow{100'000, megabyte, u"0.0", u" MB"},     SizeRow{1'000'000, megabyte, u"0", u" MB"},
    SizeRow{10'000'000, gigabyte, u"0.00", u" GB"},
};

std::u16string in_unit(std::uint64_t size) {
    for (const SizeRow& row : size_rows) {
        if (size >= row.below_kilobytes * kilobyte) continue;
        const double count = static_cast<double>(size) / static_cast<double>(row.unit);
        return format(count, row.pattern).append(row.unit_name);
    }
    return {};
}

std::u16string grouped(std::uint64_t size) {
    return format(static_cast<double>(size), u"#,##0");
}

}  // namespace

CDrive::CDrive(Drives& drives) : drives_(drives), root_(drives.current_root()) {
    Refresh();
}

void CDrive::Drive(std::u16string_view value) {
    root_ = to_upper(value.substr(0, 1)) + u":\\";
    Refresh();
}

void CDrive::Label(std::u16string_view value) {
    if (drives_.set_label(root_, value)) read_volume();
}

std::uint64_t CDrive::AvailableSpace() const {
    return drives_.space(root_).value_or(DriveSpace{}).available;
}

std::int32_t CDrive::DriveType() const {
    return static_cast<std::int32_t>(drives_.kind(root_));
}

std::u16string_view CDrive::DriveTypeEx() const {
    return kind_names[static_cast<std::size_t>(DriveType())];
}

bool CDrive::FileSystemFlag(std::int32_t flag) const {
    return (volume_.flags & static_cast<std::uint32_t>(flag)) != 0;
}

std::int32_t CDrive::FileSystemFlags() const {
    return static_cast<std::int32_t>(volume_.flags);
}

std::uint64_t CDrive::FreeSpace() const {
    return drives_.space(root_).value_or(DriveSpace{}).free;
}

std::u16string CDrive::SerialNumber() const {
    return from_utf8(std::to_string(static_cast<std::int32_t>(volume_.serial_number)));
}

std::u16string CDrive::SerialNumberEx() const {
    if (volume_.serial_number == 0) return {};
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    std::u16string text;
    for (int shift = 28; shift >= 0; shift -= 4) text += digits[volume_.serial_number >> shift & 0xF];
    return text.insert(4, 1, u'-');
}

std::u16string CDrive::FormatSize(std::uint64_t size, bool showBytes) {
    if (size < kilobyte) return grouped(size) + (size == 1 ? u" byte" : u" bytes");
    std::u16string text = in_unit(size);
    if (showBytes) text += u" (" + grouped(size) + u" bytes)";
    return text;
}

void CDrive::Refresh() {
    const std::optional<DriveSpace> space = drives_.space(root_);
    is_present_ = space.has_value();
    total_space_ = space ? space->total : 0;
    if (space) read_volume();
}

void CDrive::SetCurrDir(std::u16string_view path) {
    std::error_code refused;
    std::filesystem::current_path(native_path(path), refused);
}

void CDrive::read_volume() {
    if (std::optional<Volume> volume = drives_.volume(root_)) volume_ = std::move(*volume);
}

}  // namespace qor
