#include "platform/files.hpp"

#include <windows.h>

#include <string>

#include "platform/windows/system_text.hpp"

namespace qor {
namespace {

// A moment of the system is counted in tenths of a microsecond.
std::chrono::sys_seconds moment(const FILETIME& time) {
    const std::uint64_t ticks = (std::uint64_t{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
    return file_clock_start + std::chrono::seconds(ticks / 10'000'000U);
}

template <class Found>
FileEntry entry_of(const Found& found) {
    return {.attributes = found.dwFileAttributes,
            .creation = moment(found.ftCreationTime),
            .last_write = moment(found.ftLastWriteTime),
            .last_access = moment(found.ftLastAccessTime)};
}

// The system's search finds no root.
std::optional<FileEntry> find_root(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found)) return std::nullopt;
    return entry_of(found);
}

}  // namespace

std::filesystem::path native_path(std::u16string_view path) {
    return std::filesystem::path(path).make_preferred();
}

std::u16string path_text(const std::filesystem::path& path) {
    return from_system_text(path.native());
}

std::optional<FileEntry> find_file(std::u16string_view path) {
    const std::filesystem::path native = native_path(path);
    if (native.empty()) return std::nullopt;
    if (!native.has_relative_path()) return find_root(native.root_name().native() + L'\\');
    if (!native.has_filename()) return std::nullopt;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(native.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return std::nullopt;
    FindClose(search);
    return entry_of(found);
}

}  // namespace qor
