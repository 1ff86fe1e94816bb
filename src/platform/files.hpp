#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// With the bits that Windows gives to a file's attributes.
namespace file_attributes {
inline constexpr std::uint32_t read_only = 0x1;
inline constexpr std::uint32_t hidden = 0x2;
inline constexpr std::uint32_t system = 0x4;
inline constexpr std::uint32_t directory = 0x10;
inline constexpr std::uint32_t archive = 0x20;
inline constexpr std::uint32_t normal = 0x80;  // set alone only
inline constexpr std::uint32_t temporary = 0x100;
inline constexpr std::uint32_t compressed = 0x800;
}  // namespace file_attributes

// The hosts' clock for files starts here. A file system that does not keep a time gives this one.
inline constexpr std::chrono::sys_seconds file_clock_start = std::chrono::sys_days(std::chrono::January / 1 / 1601);

struct FileEntry {
    std::uint32_t attributes = 0;
    std::chrono::sys_seconds creation = file_clock_start;
    std::chrono::sys_seconds last_write = file_clock_start;
    std::chrono::sys_seconds last_access = file_clock_start;
};

// The path as the system takes it. Both kinds of separators are understood, and a drive's letter where the system has
// no letters; one that stands for no drive gives a path at which nothing is.
std::filesystem::path native_path(std::u16string_view path);

// The system's path as the hosts have it.
std::u16string path_text(const std::filesystem::path& path);

// The file or folder of that path, or the first one of a last name with * and ?. Nothing for a path that ends in a
// separator, but for the root.
std::optional<FileEntry> find_file(std::u16string_view path);

}  // namespace qor
