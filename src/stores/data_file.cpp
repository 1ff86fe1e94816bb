#include "stores/data_file.hpp"

#include "platform/files.hpp"
#include "platform/locked_file.hpp"

namespace qor {
namespace {

constexpr std::string_view empty_form = "There are no items\r\n";
constexpr std::size_t largest_file = std::size_t{64} << 20U;

FileContent content_of(const std::filesystem::path& file) {
    return read_whole_file(file, largest_file);
}

bool is_ours(const FileContent& content) {
    if (content.state == FileState::absent) return true;
    if (content.state != FileState::read) return false;
    constexpr std::string_view line = empty_form.substr(0, empty_form.size() - 2);
    return content.bytes.empty() || content.bytes.starts_with(line) ||
           PropertyBag::from_image(content.bytes).has_value();
}

// `bytes` over the start of the file; what is longer stays when `keep_tail` says so.
bool write(std::u16string_view path, std::string bytes, bool keep_tail) {
    if (path.empty()) return false;  // its lock would be a file in the current folder
    auto file = LockedFile::acquire(native_path(path));
    if (!file) return false;
    const FileContent old = content_of(file->path());
    const bool ours = is_ours(old);
    if (keep_tail && ours && old.bytes.size() > bytes.size()) bytes.append(old.bytes, bytes.size());
    return file->replace(bytes, ours ? LockedFile::Previous::discarded : LockedFile::Previous::kept_as_bad);
}

}  // namespace

PropertyBag load_data_file(std::u16string_view path) {
    const FileContent content = content_of(native_path(path));
    if (content.state != FileState::read) return {};
    return PropertyBag::from_image(content.bytes).value_or(PropertyBag());
}

bool save_data_file(std::u16string_view path, const PropertyBag& bag) {
    return write(path, bag.image(), true);
}

bool save_empty_data_file(std::u16string_view path) {
    return write(path, std::string(empty_form), false);
}

}  // namespace qor
