#include "hosts/calc/adapter/ground/number_text.hpp"

#include <array>
#include <charconv>
#include <cstdlib>
#include <string_view>

namespace qor::calc {

std::u16string number_text(double number) {
    if (number == 0) return u"0";
    constexpr int digits_after_first = 14;
    constexpr int largest_plain = 20;
    constexpr int smallest_plain = -10;
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific,
                                   digits_after_first)
                         .ptr;
    std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    std::string result;
    if (text.starts_with('-')) {
        result += '-';
        text.remove_prefix(1);
    }
    const std::size_t mark = text.find('e');
    const int exponent = std::atoi(text.substr(mark + 1).data());
    std::string digits(1, text[0]);
    digits += text.substr(2, mark - 2);
    digits.erase(digits.find_last_not_of('0') + 1);

    if (exponent > largest_plain || exponent < smallest_plain) {
        result += digits.front();
        if (digits.size() > 1) result.append(".").append(digits, 1);
        result += exponent < 0 ? "E-" : "E+";
        const std::string power = std::to_string(std::abs(exponent));
        if (power.size() < 2) result += '0';
        result += power;
    } else if (exponent < 0) {
        result.append("0.").append(static_cast<std::size_t>(-exponent - 1), '0').append(digits);
    } else {
        const auto whole = static_cast<std::size_t>(exponent) + 1;
        if (digits.size() <= whole) {
            result.append(digits).append(whole - digits.size(), '0');
        } else {
            result.append(digits, 0, whole).append(".").append(digits, whole);
        }
    }
    return {result.begin(), result.end()};
}

}  // namespace qor::calc
