#include "runtime/format_number.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "runtime/conversion.hpp"
#include "runtime/locale.hpp"

namespace qor {
namespace {

// 0.digits × 10^point, with neither leading nor trailing zeros; no digits for 0.
struct Decimal {
    std::string digits;
    int point = 0;

    char at(int place) const {
        return place >= 0 && place < static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(place)] : '0';
    }

    // To so many decimal places, a tie away from 0.
    void round(int places) {
        const int kept = point + places;
        if (kept >= static_cast<int>(digits.size())) return;
        const bool is_up = kept >= 0 && at(kept) >= '5';
        digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
        if (is_up) {
            while (!digits.empty() && digits.back() == '9') digits.pop_back();
            if (digits.empty()) {
                digits = "1";
                ++point;
            } else {
                ++digits.back();
            }
        }
        digits.erase(digits.find_last_not_of('0') + 1);
    }
};

Decimal decimal_of(const Variant& number) {
    std::array<char, 32> buffer;
    Decimal decimal;
    if (const auto* money = number.get_if<Currency>()) {
        const auto magnitude = money->ten_thousandths < 0 ? 0 - static_cast<std::uint64_t>(money->ten_thousandths)
                                                          : static_cast<std::uint64_t>(money->ten_thousandths);
        decimal.digits = std::to_string(magnitude);
        decimal.point = static_cast<int>(decimal.digits.size()) - 4;
    } else {
        constexpr int significant_digits = 15;
        const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(to_double(number)),
                                              std::chars_format::scientific, significant_digits - 1)
                                    .ptr;
        const char* const exponent_mark = std::find(buffer.cbegin(), buffer.cend(), 'e');
        decimal.digits.assign(buffer.cbegin(), exponent_mark);
        decimal.digits.erase(1, 1);
        std::from_chars(exponent_mark + (exponent_mark[1] == '+' ? 2 : 1), end, decimal.point);
        ++decimal.point;
    }
    const std::size_t zeros = std::min(decimal.digits.find_first_not_of('0'), decimal.digits.size());
    decimal.digits.erase(0, zeros);
    decimal.point = decimal.digits.empty() ? 0 : decimal.point - static_cast<int>(zeros);
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    return decimal;
}

bool is_placeholder(const Symbol& symbol) {
    return symbol.is(u'0') || symbol.is(u'#');
}

// What a section asks for.
struct Layout {
    explicit Layout(Symbols symbols) {
        bool is_behind_point = false;
        int commas = 0;
        for (std::size_t place = 0; place < symbols.size(); ++place) {
            const Symbol& symbol = symbols[place];
            if (is_placeholder(symbol)) {
                if (exponent_place < place) continue;
                if (is_behind_point) {
                    ++fraction_places;
                    if (symbol.is(u'0')) least_fraction_places = fraction_places;
                } else {
                    ++whole_places;
                    is_grouped |= std::exchange(commas, 0) > 0;
                }
            } else if (symbol.is(u'.') && !is_behind_point) {
                is_behind_point = true;
                point_place = place;
            } else if (symbol.is(u',') && !is_behind_point) {
                ++commas;
            } else if (symbol.is(u'%')) {
                hundreds += 2;
            } else if (exponent_place == none && places() > 0 && is_exponent(symbols.subspan(place))) {
                exponent_place = place;
            }
        }
        hundreds -= 3 * commas;  // commas behind the last whole place
    }

    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    static bool is_exponent(Symbols symbols) {
        return (starts_with(symbols, u"e+") || starts_with(symbols, u"e-")) && symbols.size() > 2 &&
               is_placeholder(symbols[2]);
    }

    int places() const { return whole_places + fraction_places; }

    int whole_places = 0;
    int fraction_places = 0;
    int least_fraction_places = 0;
    int hundreds = 0;  // the power of ten that the value is multiplied by
    bool is_grouped = false;
    std::size_t point_place = none;
    std::size_t exponent_place = none;  // of the letter
};

class NumberWriter {
  public:
    NumberWriter(Symbols symbols, Decimal number) : symbols_(symbols), layout_(symbols), number_(std::move(number)) {
        if (!number_.digits.empty()) number_.point += layout_.hundreds;
        if (layout_.exponent_place == Layout::none) {
            number_.round(layout_.fraction_places);
        } else if (!number_.digits.empty()) {
            exponent_ = number_.point - layout_.whole_places;
            number_.point = layout_.whole_places;
            number_.round(layout_.fraction_places);
            exponent_ += std::exchange(number_.point, layout_.whole_places) - layout_.whole_places;
        }
        whole_digits_ = number_.digits.empty() ? 0 : std::max(number_.point, 0);
        const int fraction_digits = static_cast<int>(number_.digits.size()) - number_.point;
        fraction_shown_ = std::max(layout_.least_fraction_places, number_.digits.empty() ? 0 : fraction_digits);
    }

    std::u16string write() {
        for (std::size_t place = 0; place < symbols_.size(); ++place) {
            const Symbol& symbol = symbols_[place];
            if (place == layout_.exponent_place) {
                place = write_exponent(place);
            } else if (is_placeholder(symbol)) {
                if (whole_left_ > 0) {
                    write_whole(symbol);
                } else {
                    write_fraction();
                }
            } else if (place == layout_.point_place) {
                if (layout_.whole_places == 0 && layout_.places() > 0) write_whole_digits(whole_digits_, 0);
                text_ += country_.decimal_point;
            } else if (!symbol.is(u',') || place > layout_.point_place) {
                text_ += symbol.character;
            }
        }
        return std::move(text_);
    }

  private:
    void write_digit(char digit, int position) {  // from the point to the left
        text_ += static_cast<char16_t>(digit);
        if (layout_.is_grouped && position > 0 && position % 3 == 0) text_ += country_.thousands_separator;
    }

    // The whole digits from position `begin - 1` down to `end`.
    void write_whole_digits(int begin, int end) {
        for (int position = begin - 1; position >= end; --position) {
            write_digit(number_.at(whole_digits_ - 1 - position), position);
        }
    }

    void write_whole(const Symbol& symbol) {
        if (whole_left_ == layout_.whole_places) write_whole_digits(whole_digits_, whole_left_);
        --whole_left_;
        is_padding_ |= symbol.is(u'0');
        if (whole_left_ < whole_digits_) {
            write_whole_digits(whole_left_ + 1, whole_left_);
        } else if (is_padding_) {
            write_digit('0', whole_left_);
        }
    }

    void write_fraction() {
        if (fraction_place_ < fraction_shown_) {
            text_ += static_cast<char16_t>(number_.digits.empty() ? '0' : number_.at(number_.point + fraction_place_));
        }
        ++fraction_place_;
    }

    // The place of its last symbol.
    std::size_t write_exponent(std::size_t place) {
        text_ += symbols_[place++].character;
        if (exponent_ < 0) {
            text_ += u'-';
        } else if (symbols_[place].character == u'+') {
            text_ += u'+';
        }
        const std::size_t first = ++place;
        while (place < symbols_.size() && is_placeholder(symbols_[place])) ++place;
        const auto least =
            static_cast<std::size_t>(std::count_if(symbols_.begin() + static_cast<std::ptrdiff_t>(first),
                                                   symbols_.begin() + static_cast<std::ptrdiff_t>(place),
                                                   [](const Symbol& symbol) { return symbol.is(u'0'); }));
        const std::string digits = std::to_string(std::abs(exponent_));
        if (digits.size() < least) text_.append(least - digits.size(), u'0');
        text_.append(digits.begin(), digits.end());
        return place - 1;
    }

    Symbols symbols_;
    Layout layout_;
    Decimal number_;
    const Locale& country_ = locale();
    int exponent_ = 0;
    int whole_digits_ = 0;
    int fraction_shown_ = 0;
    int whole_left_ = layout_.whole_places;
    int fraction_place_ = 0;
    bool is_padding_ = false;
    std::u16string text_;
};

}  // namespace

std::u16string format_number(const Variant& number, Symbols pattern) {
    const std::vector<Symbols> sections = sections_of(pattern);
    const auto section = [&](std::size_t place) {
        return place < sections.size() && !sections[place].empty() ? sections[place] : Symbols();
    };
    if (number.is(Variant::Kind::null)) return NumberWriter(section(3), {}).write();
    const double value = to_double(number);
    if (!std::isfinite(value)) return to_text(value);
    const std::size_t place = value < 0 ? 1 : value == 0 ? 2 : 0;
    if (!section(place).empty()) return NumberWriter(section(place), decimal_of(number)).write();
    const std::u16string text = NumberWriter(sections[0], decimal_of(number)).write();
    return value < 0 ? u'-' + text : text;
}

}  // namespace qor
