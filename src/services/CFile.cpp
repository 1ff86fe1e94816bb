#include "services/CFile.hpp"

#include <chrono>

#include "platform/files.hpp"
#include "runtime/format.hpp"
#include "runtime/trim.hpp"

namespace qor {
namespace {

constexpr std::u16string_view separators = u"\\/";

// Of a file that is not there, an entry that says nothing.
FileEntry entry_of(std::u16string_view path) {
    return find_file(path).value_or(FileEntry{});
}

bool has(std::u16string_view path, std::uint32_t attribute) {
    return (entry_of(path).attributes & attribute) != 0;
}

std::u16string padded(std::int64_t number, std::u16string_view zeros) {
    return format(static_cast<std::int32_t>(number), zeros);
}

std::u16string time_text(std::chrono::sys_seconds moment) {
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day day(midnight);
    const std::chrono::hh_mm_ss time(moment - midnight);
    return padded(static_cast<unsigned>(day.month()), u"00") + u'/' + padded(static_cast<unsigned>(day.day()), u"00") +
           u'/' + padded(static_cast<int>(day.year()), u"0000") + u"  " + padded(time.hours().count(), u"00") + u':' +
           padded(time.minutes().count(), u"00") + u':' + padded(time.seconds().count(), u"00");
}

// Where the name begins behind its folder.
std::size_t name_position(std::u16string_view path) {
    return path.find_last_of(separators) + 1;  // 0 where there is no separator
}

}  // namespace

bool CFile::FileExists(std::u16string_view path) {
    return find_file(path).has_value();
}

bool CFile::FolderExists(std::u16string_view path) {
    path = trim(path);
    // A separator alone is the root.
    if (path.size() > 1 && separators.find(path.back()) != separators.npos) path.remove_suffix(1);
    return has(path, file_attributes::directory);
}

std::u16string CFile::GetFileCreationTime(std::u16string_view path) {
    return time_text(entry_of(path).creation);
}
std::u16string CFile::GetFileLastWriteTime(std::u16string_view path) {
    return time_text(entry_of(path).last_write);
}
std::u16string CFile::GetFileLastAccessTime(std::u16string_view path) {
    return time_text(entry_of(path).last_access);
}

bool CFile::IsFileHidden(std::u16string_view path) {
    return has(path, file_attributes::hidden);
}
bool CFile::IsFileSystem(std::u16string_view path) {
    return has(path, file_attributes::system);
}
bool CFile::IsFileReadOnly(std::u16string_view path) {
    return has(path, file_attributes::read_only);
}
bool CFile::IsFileArchive(std::u16string_view path) {
    return has(path, file_attributes::archive);
}
bool CFile::IsFileTemp(std::u16string_view path) {
    return has(path, file_attributes::temporary);
}
bool CFile::IsFileNormal(std::u16string_view path) {
    return has(path, file_attributes::normal);
}
bool CFile::IsFileCompressed(std::u16string_view path) {
    return has(path, file_attributes::compressed);
}

std::u16string CFile::GetFilePath(std::u16string_view path) {
    const std::size_t name = name_position(path);
    return std::u16string(path.substr(0, name == 0 ? 0 : name - 1));
}

std::u16string CFile::GetFileName(std::u16string_view path) {
    return std::u16string(path.substr(name_position(path)));
}

std::u16string CFile::GetFileExtension(std::u16string_view path) {
    const std::size_t point = path.rfind(u'.');
    return std::u16string(point == path.npos ? std::u16string_view() : path.substr(point + 1));
}

std::u16string CFile::GetFileNameWOExt(std::u16string_view path) {
    const std::u16string_view name = path.substr(name_position(path));
    return std::u16string(name.substr(0, name.rfind(u'.')));
}

}  // namespace qor
