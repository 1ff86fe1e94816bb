#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

enum class FileState { absent, read, too_large, unreadable };

struct FileContent {
    FileState state;
    std::string bytes;  // only of a file that was read
};

// The whole file, which LockedFile may be replacing meanwhile: one sees the old content or the new.
// What is no regular file is unreadable; one of more than `limit` bytes is not read.
FileContent read_whole_file(const std::filesystem::path& file, std::size_t limit);

// Sole right to replace a file, among all processes that ask for it in this way, for as long as the object lives.
// The lock is the file NAME.lock beside it, which stays.
class LockedFile {
  public:
    // Waits for another holder. Absent when the lock file cannot be opened.
    static std::optional<LockedFile> acquire(const std::filesystem::path& file);

    const std::filesystem::path& path() const { return file_; }

    enum class Previous { discarded, kept_as_bad };

    // Replaces the file whole or not at all, readable by its owner only. True when the content is on the disk.
    // A previous file that is kept goes to NAME.bad.
    bool replace(std::string_view bytes, Previous previous = Previous::discarded);

  private:
    class Lock;  // the system's, held while it lives

    LockedFile(std::filesystem::path file, std::shared_ptr<const Lock> lock);

    std::filesystem::path file_;
    std::shared_ptr<const Lock> lock_;
};

}  // namespace qor
