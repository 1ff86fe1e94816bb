#include "functions/number_words.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "automation/variant.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "runtime/number_text.hpp"
#include "runtime/text_reader.hpp"

namespace qor {
namespace {

using Text = std::u16string;
using TextView = std::u16string_view;

constexpr std::array<TextView, 28> words_of_numbers{
    u"Zero",     u"One",     u"Two",     u"Three",     u"Four",     u"Five",     u"Six",
    u"Seven",    u"Eight",   u"Nine",    u"Ten",       u"Eleven",   u"Twelve",   u"Thirteen",
    u"Fourteen", u"Fifteen", u"Sixteen", u"Seventeen", u"Eighteen", u"Nineteen", u"Twenty",
    u"Thirty",   u"Forty",   u"Fifty",   u"Sixty",     u"Seventy",  u"Eighty",   u"Ninety",
};

constexpr TextView improperly_formed = u"Error - Number improperly formed";
constexpr TextView improper_commas = u"Error - Improper use of commas";
constexpr TextView too_large = u"Error - Number too large";

// A number of so many digits at most is spelled at a time.
constexpr std::size_t half_size = 9;

struct Mode {
    explicit Mode(TextView text)
        : has_and(equal_ignoring_case(text, u"and")),
          is_dollar(equal_ignoring_case(text, u"dollar")),
          is_cheque(is_dollar || equal_ignoring_case(text, u"check")) {}

    bool has_and;
    bool is_dollar;
    bool is_cheque;
};

bool is_digits(TextView text) {
    return std::ranges::all_of(text, is_digit);
}

std::int32_t value_of(TextView digits) {
    std::int32_t value = 0;
    for (const char16_t digit : digits) value = value * 10 + (digit - u'0');
    return value;
}

// Commas stand where a multiple of three digits is on the right of each up to the point.
bool take_commas(Text& whole, std::size_t point) {
    std::size_t count = 0;
    for (std::size_t place = whole.size(); place-- > 0;) {
        if (whole[place] != u',') continue;
        ++count;
        if ((point - place - count) % 3 != 0) return false;
    }
    std::erase(whole, u',');
    return true;
}

TextView take_sign(TextView& whole) {
    if (!whole.starts_with(u'-') && !whole.starts_with(u'+')) return {};
    const bool is_negative = whole.front() == u'-';
    whole.remove_prefix(1);
    return is_negative ? u"Minus " : u"Plus ";
}

// The number of ten-thousandths that the digits behind a point stand for.
std::int64_t ten_thousandths_of(TextView decimals) {
    std::string text = "0.";
    for (const char16_t digit : decimals) {
        if (!is_digit(digit)) break;
        text += static_cast<char>(digit);
    }
    double fraction = 0;
    std::from_chars(text.data(), text.data() + text.size(), fraction);
    return to_currency(fraction).ten_thousandths;
}

void append_two_digits(Text& text, std::int64_t number) {
    text += static_cast<char16_t>(u'0' + number / 10);
    text += static_cast<char16_t>(u'0' + number % 10);
}

// Leaves two decimal digits, which are rounded. A carry reaches the whole part where it is nothing but nines; any other
// whole part stays as it is.
void round_to_hundredths(Text& whole, Text& decimals) {
    const std::int64_t fraction = ten_thousandths_of(decimals);
    decimals.clear();
    append_two_digits(decimals, (fraction + 50) / 100 % 100);
    if (fraction >= 9950 && std::ranges::all_of(whole, [](char16_t c) { return c == u'9'; })) {
        std::ranges::fill(whole, u'0');
        whole.insert(0, 1, u'1');
    }
}

void append_group(Text& text, std::int32_t value, bool use_and) {
    text += hundreds_tens_units(words_of_numbers, static_cast<std::int16_t>(value), use_and);
}

struct Scale {
    std::int32_t unit;
    TextView name;
};

constexpr std::array high_scales{Scale{1'000'000, u"Quadrillion "}, Scale{1'000, u"Trillion "}, Scale{1, u"Billion "}};
constexpr std::array low_scales{Scale{1'000'000, u"Million "}, Scale{1'000, u"Thousand "}};

// What is left below the last scale.
std::int32_t append_scales(Text& text, std::int32_t value, std::span<const Scale> scales) {
    for (const auto& [unit, name] : scales) {
        if (value < unit) continue;
        append_group(text, value / unit, false);
        text += name;
        value %= unit;
    }
    return value;
}

Text words_of(TextView high, TextView low, bool has_and) {
    Text text;
    text.reserve(160);
    append_scales(text, value_of(high), high_scales);
    const std::int32_t value = value_of(low);
    if (high.empty() && value == 0) text += u"Zero ";
    const std::int32_t rest = append_scales(text, value, low_scales);
    const bool is_short = high.empty() && value < 99;
    if (rest > 0) append_group(text, rest, has_and && !is_short);
    return text;
}

void append_cents(Text& text, TextView decimals) {
    text += text == u"One " ? u"Dollar" : u"Dollars";
    Text cents;
    append_group(cents, value_of(decimals), false);
    if (cents.empty()) return;
    text += u" and " + cents + (cents == u"One " ? u"Cent" : u"Cents");
}

void append_decimals(Text& text, TextView decimals) {
    if (decimals.empty()) return;
    text += u"Point";
    for (const char16_t digit : decimals) {
        if (is_digit(digit)) text.append(1, u' ').append(words_of_numbers[digit - u'0']);
    }
}

}  // namespace

NumberWords number_words() noexcept {
    return words_of_numbers;
}

std::u16string hundreds_tens_units(NumberWords words, std::int16_t value, bool use_and) {
    const auto word = [&](std::int32_t place) {
        if (static_cast<std::size_t>(place) >= words.size()) throw Error(ErrorNumber::subscript_out_of_range);
        return words[static_cast<std::size_t>(place)];
    };
    Text text;
    std::int32_t rest = value;
    if (rest > 99) {
        text.append(word(rest / 100)).append(u" Hundred ");
        rest %= 100;
    }
    if (use_and) text += u"and ";
    if (rest > 20) {
        text.append(word(18 + rest / 10)).append(1, u' ');
        rest %= 10;
    }
    if (rest > 0) text.append(word(rest)).append(1, u' ');
    return text;
}

std::u16string number_to_words(std::u16string_view number, std::u16string_view mode_text) {
    const Mode mode(mode_text);
    if (!shows_number(number)) return Text(improperly_formed);

    const std::size_t point = std::min(number.find(u'.'), number.size());
    Text whole_text(number.substr(0, point));
    Text decimals(number.substr(std::min(point + 1, number.size())));
    if (number.find(u",,") != number.npos || number.find(u",.") != number.npos || number.find(u".,") != number.npos ||
        decimals.find(u',') != decimals.npos || !take_commas(whole_text, point)) {
        return Text(improper_commas);
    }
    // Digits behind a point may end in an exponent; their words would be those of another number.
    if (decimals.find_first_of(u"eEdD") != decimals.npos) return Text(improperly_formed);

    TextView unsigned_whole = whole_text;
    const TextView sign = take_sign(unsigned_whole);
    Text whole(unsigned_whole);
    if (mode.is_cheque) round_to_hundredths(whole, decimals);

    const std::size_t high_size = whole.size() - std::min(whole.size(), half_size);
    if (high_size > half_size) return Text(too_large);
    if (!is_digits(whole)) return Text(improperly_formed);

    Text text = words_of(TextView(whole).substr(0, high_size), TextView(whole).substr(high_size), mode.has_and);
    if (mode.is_dollar) {
        append_cents(text, decimals);
    } else if (mode.is_cheque) {
        text += u"and " + decimals + u"/100";
    } else {
        append_decimals(text, decimals);
    }
    return text.insert(0, sign);
}

}  // namespace qor
