#include "platform/posix/block_device.hpp"

#include <charconv>
#include <fstream>

namespace qor {
namespace {

// A blank and the like stand as \x20 in the names.
std::string unescape(std::string_view name) {
    std::string text;
    while (!name.empty()) {
        unsigned char code = 0;
        const bool is_escape = name.starts_with("\\x") && name.size() >= 4;
        if (is_escape && std::from_chars(name.data() + 2, name.data() + 4, code, 16).ptr == name.data() + 4) {
            text += static_cast<char>(code);
            name.remove_prefix(4);
        } else {
            text += name.front();
            name.remove_prefix(1);
        }
    }
    return text;
}

}  // namespace

std::string device_name_in(const std::filesystem::path& folder, const std::filesystem::path& device) {
    std::error_code refused;
    const std::filesystem::path wanted = std::filesystem::canonical(device, refused);
    if (refused) return {};
    for (const auto& link : std::filesystem::directory_iterator(folder, refused)) {
        if (std::filesystem::canonical(link.path(), refused) == wanted)
            return unescape(link.path().filename().native());
    }
    return {};
}

std::uint32_t serial_number_of(std::string_view identifier) {
    std::string digits(identifier);
    std::erase(digits, '-');
    if (digits.size() < 8) return 0;
    const char* const end = digits.data() + digits.size();
    std::uint32_t number = 0;
    return std::from_chars(end - 8, end, number, 16).ptr == end ? number : 0;
}

bool is_removable(const std::filesystem::path& device) {
    std::error_code refused;
    const std::filesystem::path entry = std::filesystem::canonical("/sys/class/block" / device.filename(), refused);
    if (refused) return false;
    // A partition's entry lies within its disk's, which alone says it.
    for (const auto& place : {entry, entry.parent_path()}) {
        char mark = '0';
        if (std::ifstream(place / "removable") >> mark) return mark == '1';
    }
    return false;
}

}  // namespace qor
