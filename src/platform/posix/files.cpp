#include "platform/files.hpp"

#include <fcntl.h>
#include <glob.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <string>

#include "platform/posix/mount_table.hpp"
#include "platform/text.hpp"

namespace qor {
namespace {

struct ReleaseMatches {
    void operator()(glob_t* matches) const {
        ::globfree(matches);
        delete matches;
    }
};

std::string escaped(std::string_view text, std::string_view special) {
    std::string result;
    for (const char c : text) {
        if (special.find(c) != special.npos) result += '\\';
        result += c;
    }
    return result;
}

// The first path whose last name matches, as the hosts have it: only * and ? are special, they match hidden names, and
// *.* is any name.
std::optional<std::filesystem::path> first_match(const std::filesystem::path& path) {
    const std::string name = path.filename();
    const std::string folder = path.native().substr(0, path.native().size() - name.size());
    const std::string pattern = escaped(folder, "\\[*?") + (name == "*.*" ? "*" : escaped(name, "\\["));
    const std::unique_ptr<glob_t, ReleaseMatches> matches(new glob_t{});
    if (::glob(pattern.c_str(), GLOB_PERIOD, nullptr, matches.get()) != 0) return std::nullopt;
    return matches->gl_pathv[0];
}

std::chrono::sys_seconds moment(const statx_timestamp& time) {
    return std::chrono::sys_seconds(std::chrono::seconds(time.tv_sec));
}

std::uint32_t attributes_of(const struct statx& found, const std::filesystem::path& path) {
    namespace attributes = file_attributes;
    const std::string name = path.filename();
    std::uint32_t bits = 0;
    if (S_ISDIR(found.stx_mode)) bits |= attributes::directory;
    if ((found.stx_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) bits |= attributes::read_only;
    if (name.starts_with('.') && name != "." && name != "..") bits |= attributes::hidden;
    if ((found.stx_attributes & STATX_ATTR_COMPRESSED) != 0) bits |= attributes::compressed;
    return bits == 0 ? attributes::normal : bits;
}

}  // namespace

std::filesystem::path native_path(std::u16string_view path) {
    std::string text = to_utf8(path);
    for (char& c : text) {
        if (c == '\\') c = '/';
    }
    const std::optional<Mount> mount = mount_of_drive(path);
    if (!mount) return text;
    text.erase(0, std::min(text.find_first_not_of('/', 2), text.size()));
    return mount->folder / text;
}

std::u16string path_text(const std::filesystem::path& path) {
    return from_utf8(path.native());
}

std::optional<FileEntry> find_file(std::u16string_view path) {
    std::filesystem::path native = native_path(path);
    if (!native.has_filename() && native != native.root_path()) return std::nullopt;
    if (native.native().find_first_of("*?", native.native().size() - native.filename().native().size()) !=
        std::string::npos) {
        const std::optional<std::filesystem::path> match = first_match(native);
        if (!match) return std::nullopt;
        native = *match;
    }
    struct statx found {};
    if (::statx(AT_FDCWD, native.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &found) != 0) return std::nullopt;
    FileEntry entry{.attributes = attributes_of(found, native),
                    .last_write = moment(found.stx_mtime),
                    .last_access = moment(found.stx_atime)};
    if ((found.stx_mask & STATX_BTIME) != 0) entry.creation = moment(found.stx_btime);
    return entry;
}

}  // namespace qor
