#include "runtime/number_text.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <variant>

#include "runtime/locale.hpp"
#include "runtime/text_reader.hpp"

namespace qor {
namespace {

// A number without its decoration: the value is ±digits × 10^exponent.
struct Decimal {
    bool negative = false;
    std::string digits;  // never empty; no point among them
    int exponent = 0;
};

// A number, or what the conversion of the text raises: most who ask for a text that may be none do not want it raised.
using Reading = std::variant<double, ErrorNumber>;

std::optional<int> read_exponent(TextReader& reader) {
    constexpr int beyond_every_number = 1'000'000;
    const bool negative = reader.take_if(u"+-") == u'-';
    if (!reader.at_digit()) return std::nullopt;
    int exponent = 0;
    while (reader.at_digit()) exponent = std::min(exponent * 10 + (reader.take() - u'0'), beyond_every_number);
    return negative ? -exponent : exponent;
}

constexpr bool is_fixed_blank(char16_t c) {
    return c == u'\u00A0' || c == u'\u202F';
}

bool take_thousands_separator(TextReader& reader, char16_t separator) {
    const bool is_next = !reader.at_end() &&
                         (reader.next() == separator || (is_fixed_blank(separator) && is_fixed_blank(reader.next())));
    if (is_next) reader.take();
    return is_next;
}

// What may stand around the digits, each once and in any order: the sign of the number and that of the currency.
struct Decoration {
    bool parenthesis = false;
    std::optional<char16_t> sign;
    bool currency = false;

    void take(TextReader& reader, std::u16string_view currency_sign) {
        for (;;) {
            reader.skip_blanks();
            if (!currency && reader.take_text(currency_sign)) {
                currency = true;
            } else if (!sign && !parenthesis && reader.at(u"+-")) {
                sign = reader.take();
            } else {
                return;
            }
        }
    }
};

// Nothing if the text is none.
std::optional<Decimal> read_decimal(std::u16string_view text) {
    const Locale& country = locale();
    Decimal number;
    TextReader reader(text);
    reader.skip_blanks();
    Decoration decoration;
    decoration.parenthesis = reader.take_if(u"(").has_value();
    decoration.take(reader, country.currency_sign);
    // The host's parser lets a separator stand among the decimal places, too.
    bool is_behind_point = false;
    for (;;) {
        if (reader.at_digit()) {
            number.digits += static_cast<char>(reader.take());
            if (is_behind_point) --number.exponent;
        } else if (!is_behind_point && !reader.at_end() && reader.next() == country.decimal_point) {
            reader.take();
            is_behind_point = true;
        } else if (number.digits.empty() || !take_thousands_separator(reader, country.thousands_separator)) {
            break;
        }
    }
    if (number.digits.empty()) return std::nullopt;
    if (reader.take_if(u"ED")) {
        const std::optional<int> exponent = read_exponent(reader);
        if (!exponent) return std::nullopt;
        number.exponent += *exponent;
    }
    decoration.take(reader, country.currency_sign);
    if (decoration.parenthesis && !reader.take_if(u")")) return std::nullopt;
    number.negative = decoration.parenthesis || decoration.sign == u'-';
    reader.skip_blanks();
    if (!reader.at_end()) return std::nullopt;
    return number;
}

// The literal's value, nothing if the text does not begin as one.
std::optional<Reading> read_literal(std::u16string_view text) {
    TextReader reader(text);
    reader.skip_blanks();
    if (!reader.take_if(u"&")) return std::nullopt;
    const std::optional<char16_t> mark = reader.take_if(u"HO");
    if (!mark) return ErrorNumber::type_mismatch;
    const std::u16string_view digit_choices = mark == u'H' ? u"0123456789ABCDEF" : u"01234567";
    if (!reader.at(digit_choices)) return ErrorNumber::type_mismatch;
    std::uint64_t bits = 0;
    while (const std::optional<char16_t> digit = reader.take_if(digit_choices)) {
        bits = bits * digit_choices.size() + digit_choices.find(*digit);
        if (bits > 0xFFFF'FFFF) return ErrorNumber::overflow;
    }
    const bool wide = reader.take_if(u"&").has_value() || bits > 0xFFFF;
    reader.skip_blanks();
    if (!reader.at_end()) return ErrorNumber::type_mismatch;
    return static_cast<double>(wide ? static_cast<std::int32_t>(bits) : static_cast<std::int16_t>(bits));
}

Reading to_float(const Decimal& number) {
    const std::string text = number.digits + 'e' + std::to_string(number.exponent);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        const auto leading_zeros = static_cast<int>(number.digits.find_first_not_of('0'));
        const int magnitude = static_cast<int>(number.digits.size()) - leading_zeros + number.exponent;
        if (magnitude > 0) return ErrorNumber::overflow;
        value = 0;
    }
    return number.negative ? -value : value;
}

Reading read_number(std::u16string_view text) {
    if (const std::optional<Reading> literal = read_literal(text)) return *literal;
    const std::optional<Decimal> number = read_decimal(text);
    return number ? to_float(*number) : ErrorNumber::type_mismatch;
}

double value_of(const Reading& reading) {
    if (const auto* error = std::get_if<ErrorNumber>(&reading)) throw Error(*error);
    return std::get<double>(reading);
}

// Text of the number, whose point becomes the locale's.
std::u16string shown(std::string_view ascii) {
    std::u16string text(ascii.begin(), ascii.end());
    std::ranges::replace(text, u'.', locale().decimal_point);
    return text;
}

// From "d.ddde±xx" in so many digits.
template <int significant_digits, class Float>
std::u16string general_text(Float value) {
    if (std::isnan(value)) return std::signbit(value) ? u"-1.#IND" : u"1.#QNAN";
    if (std::isinf(value)) return value < 0 ? u"-1.#INF" : u"1.#INF";
    if (value == 0) return u"0";

    std::array<char, 40> buffer;
    const char* const begin = buffer.data();
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                          std::chars_format::scientific, significant_digits - 1)
                                .ptr;
    const char* const exponent_mark = std::find(begin, end, 'e');
    int exponent = 0;
    std::from_chars(exponent_mark + (exponent_mark[1] == '+' ? 2 : 1), end, exponent);
    std::string digits(1, *begin);
    digits.append(begin + 2, exponent_mark);
    digits.erase(digits.find_last_not_of('0') + 1);

    const std::string sign = value < 0 ? "-" : "";
    const auto count = static_cast<int>(digits.size());
    if (exponent < -4 || exponent >= significant_digits) {
        if (count > 1) digits.insert(1, 1, '.');
        const std::string power = std::to_string(std::abs(exponent));
        return shown(sign + digits + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power);
    }
    if (exponent < 0) {
        digits.insert(0, static_cast<std::size_t>(-exponent - 1), '0');
        return shown(sign + "0." + digits);
    }
    const int whole_count = exponent + 1;
    if (count <= whole_count) {
        digits.append(static_cast<std::size_t>(whole_count - count), '0');
    } else {
        digits.insert(static_cast<std::size_t>(whole_count), 1, '.');
    }
    return shown(sign + digits);
}

}  // namespace

double parse_number(std::u16string_view text) {
    return value_of(read_number(text));
}

bool shows_number(std::u16string_view text) {
    return std::holds_alternative<double>(read_number(text));
}

Currency parse_currency(std::u16string_view text) {
    if (const std::optional<Reading> literal = read_literal(text)) {
        return {static_cast<std::int64_t>(value_of(*literal)) * 10'000};
    }
    const std::optional<Decimal> shown_number = read_decimal(text);
    if (!shown_number) throw Error(ErrorNumber::type_mismatch);
    const Decimal& number = *shown_number;
    const std::size_t leading_zeros = number.digits.find_first_not_of('0');
    if (leading_zeros == std::string::npos) return {};
    const std::string_view digits = std::string_view(number.digits).substr(leading_zeros);
    const int whole_count = static_cast<int>(digits.size()) + number.exponent + 4;
    if (whole_count < 0) return {};
    if (whole_count > 19) throw Error(ErrorNumber::overflow);

    const auto count = static_cast<std::size_t>(whole_count);
    std::uint64_t magnitude = 0;
    for (std::size_t place = 0; place < count; ++place) {
        magnitude = magnitude * 10 + (place < digits.size() ? static_cast<std::uint64_t>(digits[place] - '0') : 0);
    }
    if (count < digits.size()) {
        const std::string_view rest = digits.substr(count);
        const bool tie = rest.front() == '5' && rest.find_first_not_of('0', 1) == std::string_view::npos;
        if (tie ? magnitude % 2 == 1 : rest.front() >= '5') ++magnitude;
    }
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    if (magnitude > most + (number.negative ? 1 : 0)) throw Error(ErrorNumber::overflow);
    return {static_cast<std::int64_t>(number.negative ? 0 - magnitude : magnitude)};
}

std::u16string number_text(double value) {
    return general_text<15>(value);
}

std::u16string number_text(float value) {
    return general_text<7>(value);
}

std::u16string number_text(Currency value) {
    const bool negative = value.ten_thousandths < 0;
    const auto magnitude = negative ? 0 - static_cast<std::uint64_t>(value.ten_thousandths)
                                    : static_cast<std::uint64_t>(value.ten_thousandths);
    std::string text(negative ? 1 : 0, '-');
    text += std::to_string(magnitude / 10'000);
    if (magnitude % 10'000 != 0) {
        std::string fraction = std::to_string(magnitude % 10'000 + 10'000);
        fraction.front() = '.';
        fraction.erase(fraction.find_last_not_of('0') + 1);
        text += fraction;
    }
    return shown(text);
}

}  // namespace qor
