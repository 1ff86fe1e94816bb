#include "runtime/system_locale.hpp"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <type_traits>

#include "platform/text.hpp"

namespace qor {
namespace {

struct FreeLocale {
    void operator()(locale_t held) const { freelocale(held); }
};
using SystemLocale = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

std::u16string text_of(const SystemLocale& system, nl_item item) {
    return from_utf8(nl_langinfo_l(item, system.get()));
}

// The portable locale and the American one say less than what is built in.
bool is_built_in(const SystemLocale& system, int category) {
    const std::string_view name = nl_langinfo_l(_NL_LOCALE_NAME(category), system.get());
    return name == "C" || name == "POSIX" || name.starts_with("C.") || name.starts_with("en_US");
}

struct DateField {
    char16_t letter;
    std::u16string_view padded;
    std::u16string_view bare;
};

constexpr std::array date_fields{
    DateField{u'd', u"dd", u"d"},
    DateField{u'e', u"d", u"d"},
    DateField{u'm', u"mm", u"m"},
    DateField{u'b', u"mmm", u"mmm"},
    DateField{u'h', u"mmm", u"mmm"},
    DateField{u'B', u"mmmm", u"mmmm"},
    DateField{u'y', u"yyyy", u"yyyy"},
    DateField{u'Y', u"yyyy", u"yyyy"},
    DateField{u'D', u"mm/dd/yyyy", u"mm/dd/yyyy"},
    DateField{u'F', u"yyyy-mm-dd", u"yyyy-mm-dd"},
};

// A date that strftime would write, as a pattern of `format`, with the year in four digits.
std::u16string pattern_of(std::u16string_view system_pattern) {
    std::u16string pattern;
    for (std::size_t place = 0; place < system_pattern.size(); ++place) {
        if (system_pattern[place] != u'%') {
            pattern += system_pattern[place];
            continue;
        }
        bool is_padded = true;
        while (++place < system_pattern.size() &&
               std::u16string_view(u"-_0EO").find(system_pattern[place]) != std::u16string_view::npos) {
            if (system_pattern[place] == u'-') is_padded = false;
        }
        if (place == system_pattern.size()) break;
        const auto* const field = std::ranges::find(date_fields, system_pattern[place], &DateField::letter);
        if (field == date_fields.end()) continue;
        pattern += is_padded ? field->padded : field->bare;
    }
    return pattern;
}

DateOrder order_of(std::u16string_view pattern) {
    const std::size_t year = pattern.find(u'y');
    const std::size_t month = pattern.find(u'm');
    if (year < month) return DateOrder::year_month_day;
    return month < pattern.find(u'd') ? DateOrder::month_day_year : DateOrder::day_month_year;
}

constexpr std::u16string_view long_date_of(DateOrder order) {
    switch (order) {
        case DateOrder::day_month_year:
            return u"dddd, d mmmm yyyy";
        case DateOrder::year_month_day:
            return u"yyyy mmmm d, dddd";
        case DateOrder::month_day_year:
            break;
    }
    return u"dddd, mmmm d, yyyy";
}

void read_week(const SystemLocale& system, Locale& result) {
    // glibc: the first weekday counts from the day of this date, either a Sunday or a Monday; the third byte is the
    // least number of days that the first week has in the new year.
    const char* const week = nl_langinfo_l(_NL_TIME_FIRST_WEEKDAY, system.get());
    const bool counts_from_monday =
        reinterpret_cast<std::uintptr_t>(nl_langinfo_l(_NL_TIME_WEEK_1STDAY, system.get())) == 19971201;
    const int first = week[0] + (counts_from_monday ? 1 : 0);
    result.first_day_of_week = (first - 1) % 7 + 1;
    const char least_days = nl_langinfo_l(_NL_TIME_WEEK_1STWEEK, system.get())[0];
    result.first_week_of_year = least_days == 4 ? 2 : 1;
}

void read_dates(const SystemLocale& system, Locale& result) {
    for (int place = 0; place < 12; ++place) {
        const auto at = static_cast<std::size_t>(place);
        result.month_names[at] = text_of(system, MON_1 + place);
        result.month_abbreviations[at] = text_of(system, ABMON_1 + place);
    }
    for (int place = 0; place < 7; ++place) {
        const auto at = static_cast<std::size_t>(place);
        result.weekday_names[at] = text_of(system, DAY_1 + place);
        result.weekday_abbreviations[at] = text_of(system, ABDAY_1 + place);
    }
    if (const std::u16string morning = text_of(system, AM_STR); !morning.empty()) {
        result.morning = morning;
        result.afternoon = text_of(system, PM_STR);
    }
    if (const std::u16string pattern = pattern_of(text_of(system, D_FMT)); pattern.find(u'd') != pattern.npos &&
                                                                           pattern.find(u'm') != pattern.npos &&
                                                                           pattern.find(u'y') != pattern.npos) {
        result.short_date = pattern;
        result.date_order = order_of(pattern);
        result.long_date = long_date_of(result.date_order);
        if (const std::size_t separator = pattern.find_first_of(u"./-"); separator != pattern.npos) {
            result.date_separator = pattern[separator];
        }
    }
    const std::u16string time = text_of(system, T_FMT);
    if (time.find(u'H') != time.npos || time.find(u'T') != time.npos) result.long_time = u"hh:nn:ss";
    read_week(system, result);
}

void read_numbers(const SystemLocale& system, Locale& result) {
    const std::u16string point = text_of(system, RADIXCHAR);
    const std::u16string separator = text_of(system, THOUSEP);
    if (point.size() != 1) return;
    result.decimal_point = point.front();
    // Where the system writes no separator, one that cannot be taken for the point stands in.
    if (separator.size() == 1) {
        result.thousands_separator = separator.front();
    } else if (result.decimal_point == result.thousands_separator) {
        result.thousands_separator = u'.';
    }
}

void read_money(const SystemLocale& system, Locale& result) {
    const std::u16string sign = text_of(system, CRNCYSTR);  // "-" in front: before the number; "+": behind it
    if (sign.size() < 2) return;
    result.currency_sign = sign.substr(1);
    const std::u16string quoted = u'"' + result.currency_sign + u'"';
    const std::u16string amount = sign.front() == u'+' ? u"#,##0.00 " + quoted : quoted + u"#,##0.00";
    result.currency_pattern = amount + u";-" + amount;
}

}  // namespace

Locale system_locale() {
    Locale result = english_locale();
    const SystemLocale system(newlocale(LC_ALL_MASK, "", nullptr));
    if (!system || std::string_view(nl_langinfo_l(CODESET, system.get())) != "UTF-8") return result;
    if (!is_built_in(system, LC_TIME)) read_dates(system, result);
    if (!is_built_in(system, LC_NUMERIC)) read_numbers(system, result);
    if (!is_built_in(system, LC_MONETARY)) read_money(system, result);
    return result;
}

}  // namespace qor
