#include "platform/locked_file.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "platform/posix/file_descriptor.hpp"

namespace qor {

namespace {

std::filesystem::path beside(const std::filesystem::path& file, const char* suffix) {
    std::filesystem::path result = file;
    result += suffix;
    return result;
}

bool write_all(const FileDescriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool create(const std::filesystem::path& file, std::string_view bytes) {
    const FileDescriptor out(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    return out && write_all(out, bytes) && ::fsync(out.number()) == 0;
}

bool move_file(const std::filesystem::path& from, const std::filesystem::path& to) {
    return ::rename(from.c_str(), to.c_str()) == 0;
}

// A file system that cannot flush folders says so by EINVAL; there the rename is all that can be had.
bool flush_folder_of(const std::filesystem::path& file) {
    const auto folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened && (::fsync(opened.number()) == 0 || errno == EINVAL);
}

// A file that is a symbolic link stays one: its target is what is replaced.
std::filesystem::path target_of(const std::filesystem::path& file) {
    std::error_code error;
    auto target = std::filesystem::canonical(file, error);
    return error ? file : target;
}

}  // namespace

FileContent read_whole_file(const std::filesystem::path& file, std::size_t limit) {
    // Without O_NONBLOCK a pipe in the file's place would wait for a writer.
    const FileDescriptor in(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!in) return {errno == ENOENT || errno == ENOTDIR ? FileState::absent : FileState::unreadable, {}};
    struct stat status = {};
    if (::fstat(in.number(), &status) != 0 || !S_ISREG(status.st_mode)) return {FileState::unreadable, {}};
    if (static_cast<std::size_t>(status.st_size) > limit) return {FileState::too_large, {}};

    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = ::read(in.number(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return {FileState::unreadable, {}};
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return {FileState::read, std::move(bytes)};
}

class LockedFile::Lock {
  public:
    explicit Lock(FileDescriptor file) : file_(std::move(file)) {}

  private:
    FileDescriptor file_;  // closing it gives the lock back
};

LockedFile::LockedFile(std::filesystem::path file, std::shared_ptr<const Lock> lock)
    : file_(std::move(file)), lock_(std::move(lock)) {}

std::optional<LockedFile> LockedFile::acquire(const std::filesystem::path& file) {
    auto target = target_of(file);
    FileDescriptor lock(::open(beside(target, ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!lock) return std::nullopt;
    while (::flock(lock.number(), LOCK_EX) != 0)
        if (errno != EINTR) return std::nullopt;
    return LockedFile(std::move(target), std::make_shared<const Lock>(std::move(lock)));
}

bool LockedFile::replace(std::string_view bytes, Previous previous) {
    // The name is fixed, so what a killed holder left behind is taken away by the next one.
    const auto fresh = beside(file_, ".new");
    ::unlink(fresh.c_str());
    const bool replaced = create(fresh, bytes) &&
                          (previous == Previous::discarded || move_file(file_, beside(file_, ".bad"))) &&
                          move_file(fresh, file_);
    if (!replaced) ::unlink(fresh.c_str());
    return replaced && flush_folder_of(file_);
}

}  // namespace qor
