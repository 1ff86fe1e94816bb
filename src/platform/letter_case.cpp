#include "platform/letter.hpp"
#include "platform/text.hpp"

namespace qor {

namespace {

char32_t upper(char32_t code_point) {
    if (code_point < 0x80) return code_point >= U'a' && code_point <= U'z' ? code_point - 0x20 : code_point;
    return upper_letter(code_point);
}

char32_t lower(char32_t code_point) {
    if (code_point < 0x80) return code_point >= U'A' && code_point <= U'Z' ? code_point + 0x20 : code_point;
    return lower_letter(code_point);
}

template <typename Mapping>
std::u16string mapped(std::u16string_view text, Mapping mapping) {
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        append_code_point(result, mapping(take_code_point(text, position)));
    return result;
}

}  // namespace

std::u16string to_lower(std::u16string_view text) {
    return mapped(text, lower);
}

std::u16string to_upper(std::u16string_view text) {
    return mapped(text, upper);
}

bool equal_ignoring_case(std::u16string_view left, std::u16string_view right) {
    std::size_t at_left = 0;
    std::size_t at_right = 0;
    while (at_left < left.size() && at_right < right.size()) {
        const char32_t one = take_code_point(left, at_left);
        const char32_t other = take_code_point(right, at_right);
        if (one != other && upper(one) != upper(other)) return false;
    }
    return at_left == left.size() && at_right == right.size();
}

}  // namespace qor
