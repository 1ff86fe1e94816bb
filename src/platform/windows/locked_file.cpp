#include "platform/locked_file.hpp"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/windows/handle.hpp"

namespace qor {

namespace {

constexpr DWORD shared_by_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t largest_part = std::size_t{1} << 20U;  // bytes in one call

std::filesystem::path beside(const std::filesystem::path& file, const char* suffix) {
    std::filesystem::path result = file;
    result += suffix;
    return result;
}

bool write_all(const Handle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(bytes.size(), largest_part));
        if (!WriteFile(file.get(), bytes.data(), part, &written, nullptr) || written == 0) return false;
        bytes.remove_prefix(written);
    }
    return true;
}

bool create(const std::filesystem::path& file, std::string_view bytes) {
    const Handle out(CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    return out && write_all(out, bytes) && FlushFileBuffers(out.get());
}

bool move_file(const std::filesystem::path& from, const std::filesystem::path& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

}  // namespace

FileContent read_whole_file(const std::filesystem::path& file, std::size_t limit) {
    const Handle in(
        CreateFileW(file.c_str(), GENERIC_READ, shared_by_all, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!in) {
        const DWORD reason = GetLastError();
        const bool is_absent = reason == ERROR_FILE_NOT_FOUND || reason == ERROR_PATH_NOT_FOUND;
        return {is_absent ? FileState::absent : FileState::unreadable, {}};
    }
    LARGE_INTEGER size{};
    if (GetFileType(in.get()) != FILE_TYPE_DISK || !GetFileSizeEx(in.get(), &size)) return {FileState::unreadable, {}};
    if (static_cast<std::uint64_t>(size.QuadPart) > limit) return {FileState::too_large, {}};

    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        DWORD count = 0;
        const auto part = static_cast<DWORD>(std::min(bytes.size() - filled, largest_part));
        if (!ReadFile(in.get(), bytes.data() + filled, part, &count, nullptr)) return {FileState::unreadable, {}};
        if (count == 0) break;
        filled += count;
    }
    bytes.resize(filled);
    return {FileState::read, std::move(bytes)};
}

class LockedFile::Lock {
  public:
    explicit Lock(Handle file) : file_(std::move(file)) {}

  private:
    Handle file_;  // closing it gives the lock back
};

LockedFile::LockedFile(std::filesystem::path file, std::shared_ptr<const Lock> lock)
    : file_(std::move(file)), lock_(std::move(lock)) {}

std::optional<LockedFile> LockedFile::acquire(const std::filesystem::path& file) {
    Handle lock(CreateFileW(beside(file, ".lock").c_str(), GENERIC_READ | GENERIC_WRITE, shared_by_all, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    OVERLAPPED first_byte{};
    if (!lock || !LockFileEx(lock.get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &first_byte)) return std::nullopt;
    return LockedFile(file, std::make_shared<const Lock>(std::move(lock)));
}

bool LockedFile::replace(std::string_view bytes, Previous previous) {
    // The name is fixed, so what a killed holder left behind is taken away by the next one.
    const auto fresh = beside(file_, ".new");
    DeleteFileW(fresh.c_str());
    const bool replaced = create(fresh, bytes) &&
                          (previous == Previous::discarded || move_file(file_, beside(file_, ".bad"))) &&
                          move_file(fresh, file_);
    if (!replaced) DeleteFileW(fresh.c_str());
    return replaced;
}

}  // namespace qor
