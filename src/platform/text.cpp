#include "platform/text.hpp"

namespace qor {

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool is_high_surrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool is_low_surrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr char byte(char32_t value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

char* write_utf8(char* out, char32_t code_point) {
    if (code_point < 0x80) {
        *out++ = byte(code_point);
    } else if (code_point < 0x800) {
        *out++ = byte(0xC0 | (code_point >> 6));
        *out++ = byte(0x80 | (code_point & 0x3F));
    } else if (code_point < 0x10000) {
        *out++ = byte(0xE0 | (code_point >> 12));
        *out++ = byte(0x80 | ((code_point >> 6) & 0x3F));
        *out++ = byte(0x80 | (code_point & 0x3F));
    } else {
        *out++ = byte(0xF0 | (code_point >> 18));
        *out++ = byte(0x80 | ((code_point >> 12) & 0x3F));
        *out++ = byte(0x80 | ((code_point >> 6) & 0x3F));
        *out++ = byte(0x80 | (code_point & 0x3F));
    }
    return out;
}

char16_t* write_utf16(char16_t* out, char32_t code_point) {
    if (code_point < 0x10000) {
        *out++ = static_cast<char16_t>(code_point);
    } else {
        *out++ = static_cast<char16_t>(0xD7C0 + (code_point >> 10));
        *out++ = static_cast<char16_t>(0xDC00 | (code_point & 0x3FF));
    }
    return out;
}

// How many bytes follow a lead byte and the range of the first of them, which is where overlong forms, surrogates
// and values above U+10FFFF are shut out (The Unicode Standard, table 3-7).
struct Lead {
    int following;
    unsigned char low;
    unsigned char high;
};

constexpr Lead lead_of(unsigned char first) {
    if (first >= 0xC2 && first <= 0xDF) return {1, 0x80, 0xBF};
    if (first == 0xE0) return {2, 0xA0, 0xBF};
    if (first == 0xED) return {2, 0x80, 0x9F};
    if (first >= 0xE1 && first <= 0xEF) return {2, 0x80, 0xBF};
    if (first == 0xF0) return {3, 0x90, 0xBF};
    if (first >= 0xF1 && first <= 0xF3) return {3, 0x80, 0xBF};
    if (first == 0xF4) return {3, 0x80, 0x8F};
    return {0, 0, 0};
}

char32_t take_utf8(std::string_view bytes, std::size_t& position) {
    const auto first = static_cast<unsigned char>(bytes[position++]);
    if (first < 0x80) return first;
    auto [following, low, high] = lead_of(first);
    if (following == 0) return replacement;
    char32_t code_point = first & (0x3FU >> following);
    for (; following > 0; --following) {
        if (position == bytes.size()) return replacement;
        const auto next = static_cast<unsigned char>(bytes[position]);
        if (next < low || next > high) return replacement;
        code_point = (code_point << 6) | (next & 0x3FU);
        ++position;
        low = 0x80;
        high = 0xBF;
    }
    return code_point;
}

}  // namespace

std::string to_utf8(std::u16string_view text) {
    std::string bytes(text.size() * 3, '\0');  // a unit gives at most 3 bytes, a pair 4
    char* out = bytes.data();
    for (std::size_t position = 0; position < text.size();) {
        const char32_t code_point = take_code_point(text, position);
        out = write_utf8(out, is_surrogate(code_point) ? replacement : code_point);
    }
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

std::u16string from_utf8(std::string_view bytes) {
    std::u16string text(bytes.size(), u'\0');
    char16_t* out = text.data();
    for (std::size_t position = 0; position < bytes.size();) out = write_utf16(out, take_utf8(bytes, position));
    text.resize(static_cast<std::size_t>(out - text.data()));
    return text;
}

char32_t take_code_point(std::u16string_view text, std::size_t& position) {
    const char32_t unit = text[position++];
    if (!is_high_surrogate(unit) || position == text.size() || !is_low_surrogate(text[position])) return unit;
    return ((unit - 0xD7C0) << 10) | (text[position++] & 0x3FFU);
}

void append_code_point(std::u16string& text, char32_t code_point) {
    char16_t units[2];
    text.append(units, write_utf16(units, code_point));
}

}  // namespace qor
