#include "platform/file_address.hpp"

#include <algorithm>

#include "platform/text.hpp"

namespace qor {
namespace {

constexpr std::u16string_view scheme = u"file:";
constexpr std::string_view digits = "0123456789ABCDEF";

// As RFC 3986 has it for a path, but for the semicolon, which the office writes as an escape.
constexpr bool may_stand(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           std::string_view("/-._~!$&'()*+,=:@").find(byte) != std::string_view::npos;
}

// The byte of the escape that begins at the position; -1 where none does.
int escaped_byte(std::string_view bytes, std::size_t position) {
    if (bytes[position] != '%' || position + 2 >= bytes.size()) return -1;
    int byte = 0;
    for (const char c : bytes.substr(position + 1, 2)) {
        const std::size_t digit = digits.find(c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c);
        if (digit == std::string_view::npos) return -1;
        byte = byte * 16 + static_cast<int>(digit);
    }
    return byte;
}

// What is no escape is read as it stands, and so are escapes of bytes that are no UTF-8.
std::string unescaped(std::string_view bytes) {
    std::string result;
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t start = position;
        std::string run;
        for (int byte = -1; position < bytes.size() && (byte = escaped_byte(bytes, position)) >= 0; position += 3) {
            run += static_cast<char>(byte);
        }
        if (run.empty()) {
            result += bytes[position++];
        } else {
            result += to_utf8(from_utf8(run)) == run ? run : bytes.substr(start, position - start);
        }
    }
    return result;
}

bool begins_with_scheme(std::u16string_view text) {
    return equal_ignoring_case(text.substr(0, scheme.size()), scheme);
}

// The path in the address, still with its escapes; empty for what is no address of a file here.
std::u16string_view written_path(std::u16string_view address) {
    if (address.find_first_of(u"?#") != std::u16string_view::npos) return {};
    if (!begins_with_scheme(address)) {
        const bool is_relative = !address.starts_with(u'/') && address.find(u':') == std::u16string_view::npos;
        return is_relative ? address : std::u16string_view();
    }
    address.remove_prefix(scheme.size());
    if (!address.starts_with(u"//")) return address;
    address.remove_prefix(2);
    const std::u16string_view computer = address.substr(0, address.find(u'/'));
    if (!computer.empty() && computer != u"localhost" && computer != u"127.0.0.1") return {};
    return address.substr(computer.size());
}

}  // namespace

std::u16string address_of_path(std::u16string_view path) {
    const bool is_rooted = path.starts_with(u'/');
    if (!is_rooted && (begins_with_scheme(path) || path.find(u"://") != std::u16string_view::npos)) {
        return std::u16string(path);
    }
    std::string address = is_rooted ? "file://" : "";
    char before = '\0';
    for (const char byte : to_utf8(path)) {
        if (byte == '/' && before == '/') continue;
        before = byte;
        if (may_stand(byte)) {
            address += byte;
        } else {
            const auto number = static_cast<unsigned char>(byte);
            address += {'%', digits[number / 16], digits[number % 16]};
        }
    }
    return from_utf8(address);
}

std::u16string path_of_address(std::u16string_view address) {
    const std::string written = to_utf8(written_path(address));
    const std::string path = unescaped(written);
    const auto slashes = [](std::string_view text) { return std::count(text.begin(), text.end(), '/'); };
    if (path.empty() || path.find('\0') != path.npos || slashes(path) != slashes(written)) {
        return std::u16string(address);
    }
    return from_utf8(path);
}

}  // namespace qor
