#include "functions/word_day.hpp"

#include <array>
#include <string_view>

namespace qor {
namespace {

constexpr std::int32_t units_in_words = 0;
constexpr std::int32_t tens_in_words = 1;

constexpr std::array<std::u16string_view, 21> words{
    u"",           u"First",     u"Second",    u"Third",       u"Fourth",     u"Fifth",      u"Sixth",
    u"Seventh",    u"Eighth",    u"Ninth",     u"Tenth",       u"Eleventh",   u"Twelfth",    u"Thirteenth",
    u"Fourteenth", u"Fifteenth", u"Sixteenth", u"Seventeenth", u"Eighteenth", u"Nineteenth", u"Twentieth",
};
constexpr std::array<std::u16string_view, 4> tens_words{u"", u"", u"Twenty-", u"Thirty-"};
constexpr std::array<std::u16string_view, 4> tens_digits{u"", u"", u"2", u"3"};
constexpr std::array<std::u16string_view, 4> endings{u"TH", u"ST", u"ND", u"RD"};

std::u16string ordinal(std::size_t number) {
    std::u16string text;
    if (number > 9) text += static_cast<char16_t>(u'0' + number / 10);
    text += static_cast<char16_t>(u'0' + number % 10);
    return text.append(number < endings.size() ? endings[number] : endings.front());
}

}  // namespace

std::u16string word_day(std::int32_t day, std::int32_t form) {
    const auto number = static_cast<std::size_t>(day);
    if (number == 30) return form == units_in_words ? u"Thirtieth" : ordinal(number);
    if (number < words.size()) return form == units_in_words ? std::u16string(words[number]) : ordinal(number);
    const std::size_t tens = number / 10;
    const std::size_t units = number % 10;
    std::u16string text(form == tens_in_words ? tens_words[tens] : tens_digits[tens]);
    return form == units_in_words ? text.append(words[units]) : text + ordinal(units);
}

}  // namespace qor
