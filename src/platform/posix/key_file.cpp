#include "platform/posix/key_file.hpp"

#include <algorithm>
#include <map>
#include <vector>

namespace qor {

namespace {

constexpr std::string_view blanks = " \t\r\n\v\f";

std::vector<std::string_view> lines_of(std::string_view bytes) {
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        lines.push_back(bytes.substr(0, length));
        bytes.remove_prefix(length);
    }
    return lines;
}

bool is_blank(std::string_view line) {
    return line.find_first_not_of(blanks) == std::string_view::npos;
}

bool is_comment(std::string_view line) {
    return line.starts_with('#');
}

void drop_blank_end(std::vector<std::string_view>& lines) {
    while (!lines.empty() && is_blank(lines.back())) lines.pop_back();
}

// Empty for a line that is no header.
std::string group_of_header(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const std::size_t end = line.find(']');
    return line.starts_with('[') && end != std::string_view::npos ? std::string(line.substr(1, end - 1)) : "";
}

// GKeyFile takes what stands above a header for the end of the group before it, so that a new key of that group would
// come below. Here the blank lines are left out, which GKeyFile puts back, and the comment goes with its header.
struct Separated {
    std::string text;
    std::map<std::string, std::string> comments;  // by group, as GKeyFile wants them: without the first '#' of a line
};

Separated separate(std::string_view bytes) {
    Separated result;
    std::vector<std::string_view> kept;
    for (const std::string_view line : lines_of(bytes)) {
        if (const std::string group = group_of_header(line); !group.empty()) {
            const auto above = std::find_if_not(kept.rbegin(), kept.rend(), is_comment).base();
            if (above != kept.end() && !result.comments.contains(group)) {
                std::string& comment = result.comments[group];
                for (auto part = above; part != kept.end(); ++part)
                    comment.append(part->substr(1, part->find_last_not_of("\r\n"))).append("\n");
                comment.pop_back();
                kept.erase(above, kept.end());
            }
            drop_blank_end(kept);
        }
        kept.push_back(line);
    }
    drop_blank_end(kept);
    for (const std::string_view line : kept) result.text += line;
    return result;
}

}  // namespace

KeyFile parse_key_file(std::string_view bytes) {
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";  // some editors put it in front
    if (bytes.starts_with(byte_order_mark)) bytes.remove_prefix(byte_order_mark.size());
    if (!g_utf8_validate_len(bytes.data(), bytes.size(), nullptr)) return nullptr;

    const auto [text, comments] = separate(bytes);
    KeyFile file(g_key_file_new());
    constexpr auto keep_all = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    if (!g_key_file_load_from_data(file.get(), text.c_str(), text.size(), keep_all, nullptr)) return nullptr;
    for (const auto& [group, comment] : comments)
        g_key_file_set_comment(file.get(), group.c_str(), nullptr, comment.c_str(), nullptr);
    return file;
}

std::string bytes_of(const KeyFile& file) {
    gsize length = 0;
    const Text data(g_key_file_to_data(file.get(), &length, nullptr));
    return {data.get(), length};
}

}  // namespace qor
