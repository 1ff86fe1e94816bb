#include "platform/posix/ini_text.hpp"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

#include "platform/text.hpp"

namespace qor {

namespace {

constexpr bool is_control(char32_t code_point) {
    return code_point < 0x20 || code_point == 0x7F;
}

struct Escape {
    char16_t letter;
    char16_t meaning;
};

constexpr Escape value_escapes[] = {{u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}, {u's', u' '}, {u'\\', u'\\'}};

template <typename Unit, typename Member>
const Escape* find_escape(Unit unit, Member member) {
    const Escape* found = std::ranges::find(value_escapes, unit, member);
    return found == std::end(value_escapes) ? nullptr : found;
}

std::string hexadecimal_escape(std::string introducer, char32_t number, int digits) {
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        introducer += "0123456789ABCDEF"[(number >> shift) & 0xF];
    return introducer;
}

std::optional<char16_t> from_hexadecimal(std::u16string_view text, std::size_t position, std::size_t digits) {
    if (position > text.size() || digits > text.size() - position) return std::nullopt;
    std::uint32_t number = 0;
    for (const char16_t digit : text.substr(position, digits)) {
        const char16_t letter = digit | 0x20;
        if (digit >= u'0' && digit <= u'9')
            number = number * 16 + (digit - u'0');
        else if (letter >= u'a' && letter <= u'f')
            number = number * 16 + (letter - u'a' + 10);
        else
            return std::nullopt;
    }
    return static_cast<char16_t>(number);
}

// `write(code_point, first, last)` gives the escape, or an empty text for what stays as it is.
template <typename Write>
std::string escaped(std::u16string_view text, Write write) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t code_point = take_code_point(text, position);
        const std::string escape = write(code_point, start == 0, position == text.size());
        result += escape.empty() ? to_utf8(text.substr(start, position - start)) : escape;
    }
    return result;
}

struct Unescaped {
    char16_t unit;
    std::size_t length;  // of the escape in the file, its introducer included
};

// `parse(text, position)` reads the escape that begins at `position`, if one does.
template <typename Parse>
std::u16string unescaped(std::string_view written, char16_t introducer, Parse parse) {
    const std::u16string text = from_utf8(written);
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        std::optional<Unescaped> escape;
        if (text[position] == introducer) escape = parse(text, position);
        result += escape ? escape->unit : text[position];
        position += escape ? escape->length : 1;
    }
    return result;
}

}  // namespace

std::string escape_value(std::u16string_view value) {
    return escaped(value, [](char32_t code_point, bool first, bool last) -> std::string {
        if (code_point == U' ' && !first && !last) return {};
        if (const Escape* escape = find_escape(code_point, &Escape::meaning))
            return {'\\', static_cast<char>(escape->letter)};
        if (is_control(code_point) || is_surrogate(code_point)) return hexadecimal_escape("\\u", code_point, 4);
        return {};
    });
}

std::u16string unescape_value(std::string_view line) {
    return unescaped(line, u'\\', [](std::u16string_view text, std::size_t position) -> std::optional<Unescaped> {
        if (position + 1 == text.size()) return std::nullopt;
        if (text[position + 1] == u'u') {
            const auto unit = from_hexadecimal(text, position + 2, 4);
            return unit ? std::optional(Unescaped{*unit, 6}) : std::nullopt;
        }
        const Escape* escape = find_escape(text[position + 1], &Escape::letter);
        return escape ? std::optional(Unescaped{escape->meaning, 2}) : std::nullopt;
    });
}

std::string escape_name(std::u16string_view name) {
    return escaped(name, [](char32_t code_point, bool first, bool last) -> std::string {
        if (is_surrogate(code_point)) return hexadecimal_escape("%u", code_point, 4);
        const bool forbidden = is_control(code_point) || code_point == U'=' || code_point == U'[' ||
                               code_point == U']' || code_point == U'%' || (code_point == U'#' && first) ||
                               (code_point == U' ' && (first || last));
        return forbidden ? hexadecimal_escape("%", code_point, 2) : std::string();
    });
}

std::u16string unescape_name(std::string_view written) {
    return unescaped(written, u'%', [](std::u16string_view text, std::size_t position) -> std::optional<Unescaped> {
        const bool wide = position + 1 < text.size() && text[position + 1] == u'u';
        const auto unit = wide ? from_hexadecimal(text, position + 2, 4) : from_hexadecimal(text, position + 1, 2);
        return unit ? std::optional(Unescaped{*unit, wide ? 6U : 3U}) : std::nullopt;
    });
}

}  // namespace qor
