#include "runtime/system_locale.hpp"

#include <windows.h>

#include <iterator>
#include <string_view>
#include <utility>

namespace qor {
namespace {

std::u16string text_of(LCTYPE item) {
    wchar_t buffer[96];
    const int size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, item, buffer, static_cast<int>(std::size(buffer)));
    return size > 0 ? std::u16string(buffer, buffer + size - 1) : std::u16string();
}

int number_of(LCTYPE item) {
    DWORD number = 0;
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, item | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&number),
                    sizeof(number) / sizeof(wchar_t));
    return static_cast<int>(number);
}

// The system's letters (M for months, m for minutes, H for 24 hours, tt, texts in ') as a pattern of `format`.
std::u16string pattern_of(std::u16string_view system_pattern) {
    std::u16string pattern;
    bool is_quoted = false;
    for (const char16_t c : system_pattern) {
        if (c == u'\'') {
            is_quoted = !is_quoted;
            pattern += u'"';
        } else if (is_quoted) {
            pattern += c;
        } else if (c == u'm') {
            pattern += u'n';
        } else if (c == u'M') {
            pattern += u'm';
        } else if (c == u'H') {
            pattern += u'h';
        } else if (c != u't') {
            pattern += c;
        } else if (!pattern.ends_with(u"AMPM")) {
            pattern += u"AMPM";
        }
    }
    return pattern;
}

void take(char16_t& target, LCTYPE item) {
    if (const std::u16string text = text_of(item); text.size() == 1) target = text.front();
}

void take(std::u16string& target, std::u16string text) {
    if (!text.empty()) target = std::move(text);
}

}  // namespace

Locale system_locale() {
    Locale result = english_locale();
    for (unsigned place = 0; place < 12; ++place) {
        take(result.month_names[place], text_of(LOCALE_SMONTHNAME1 + place));
        take(result.month_abbreviations[place], text_of(LOCALE_SABBREVMONTHNAME1 + place));
    }
    for (unsigned place = 0; place < 7; ++place) {
        const unsigned after_sunday = (place + 6) % 7;  // the system's week begins on Monday
        take(result.weekday_names[place], text_of(LOCALE_SDAYNAME1 + after_sunday));
        take(result.weekday_abbreviations[place], text_of(LOCALE_SABBREVDAYNAME1 + after_sunday));
    }
    take(result.morning, text_of(LOCALE_SAM));
    take(result.afternoon, text_of(LOCALE_SPM));
    result.date_order = static_cast<DateOrder>(number_of(LOCALE_IDATE) % 3);  // in the order of DateOrder
    take(result.date_separator, LOCALE_SDATE);
    take(result.time_separator, LOCALE_STIME);
    take(result.short_date, pattern_of(text_of(LOCALE_SSHORTDATE)));
    take(result.long_date, pattern_of(text_of(LOCALE_SLONGDATE)));
    take(result.long_time, pattern_of(text_of(LOCALE_STIMEFORMAT)));
    result.first_day_of_week = (number_of(LOCALE_IFIRSTDAYOFWEEK) + 1) % 7 + 1;  // 0 is Monday there
    constexpr std::int32_t week_rules[] = {1, 3, 2};
    result.first_week_of_year = week_rules[number_of(LOCALE_IFIRSTWEEKOFYEAR) % 3];
    take(result.decimal_point, LOCALE_SDECIMAL);
    take(result.thousands_separator, LOCALE_STHOUSAND);
    take(result.currency_sign, text_of(LOCALE_SCURRENCY));
    if (result.currency_sign != u"$") {
        const std::u16string sign = u'"' + result.currency_sign + u'"';
        constexpr std::u16string_view number = u"#,##0.00";
        const auto [before, behind] = [&]() -> std::pair<std::u16string, std::u16string> {
            switch (number_of(LOCALE_ICURRENCY)) {
                case 1:
                    return {u"", sign};
                case 2:
                    return {sign + u' ', u""};
                case 3:
                    return {u"", u' ' + sign};
                default:
                    return {sign, u""};
            }
        }();
        const std::u16string amount = before + std::u16string(number) + behind;
        result.currency_pattern = amount + u";-" + amount;
    }
    return result;
}

}  // namespace qor
