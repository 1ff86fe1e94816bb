#include "runtime/format_date.hpp"

#include <algorithm>
#include <array>

#include "platform/text.hpp"
#include "runtime/calendar.hpp"

namespace qor {
namespace {

constexpr std::array<std::u16string_view, 7> weekday_names{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                           u"Thursday", u"Friday", u"Saturday"};
constexpr std::array<std::u16string_view, 12> month_names{u"January",   u"February", u"March",    u"April",
                                                          u"May",       u"June",     u"July",     u"August",
                                                          u"September", u"October",  u"November", u"December"};

std::u16string digits(std::int64_t number, std::size_t least_count) {
    const std::string text = std::to_string(number);
    std::u16string result(least_count > text.size() ? least_count - text.size() : 0, u'0');
    return result.append(text.begin(), text.end());
}

std::u16string_view weekday_name(const CivilTime& civil) {
    return weekday_names[civil.weekday.c_encoding()];
}

std::u16string_view month_name(const CivilTime& civil) {
    return month_names[static_cast<unsigned>(civil.day.month()) - 1];
}

std::u16string day(const CivilTime& civil, std::size_t count) {
    return digits(static_cast<unsigned>(civil.day.day()), count);
}

std::u16string month(const CivilTime& civil, std::size_t count) {
    return digits(static_cast<unsigned>(civil.day.month()), count);
}

struct Field {
    std::u16string_view letters;
    std::u16string (*text)(const CivilTime&);
};

// The longer run of a letter comes before the shorter.
constexpr std::array fields{
    Field{u"dddd", [](const CivilTime& civil) { return std::u16string(weekday_name(civil)); }},
    Field{u"ddd", [](const CivilTime& civil) { return std::u16string(weekday_name(civil).substr(0, 3)); }},
    Field{u"dd", [](const CivilTime& civil) { return day(civil, 2); }},
    Field{u"d", [](const CivilTime& civil) { return day(civil, 1); }},
    Field{u"mmmm", [](const CivilTime& civil) { return std::u16string(month_name(civil)); }},
    Field{u"mmm", [](const CivilTime& civil) { return std::u16string(month_name(civil).substr(0, 3)); }},
    Field{u"mm", [](const CivilTime& civil) { return month(civil, 2); }},
    Field{u"m", [](const CivilTime& civil) { return month(civil, 1); }},
    Field{u"yyyy", [](const CivilTime& civil) { return digits(static_cast<int>(civil.day.year()), 4); }},
    Field{u"yy", [](const CivilTime& civil) { return digits(static_cast<int>(civil.day.year()) % 100, 2); }},
    Field{u"hh", [](const CivilTime& civil) { return digits(civil.time.hours().count(), 2); }},
    Field{u"h", [](const CivilTime& civil) { return digits(civil.time.hours().count(), 1); }},
    Field{u"nn", [](const CivilTime& civil) { return digits(civil.time.minutes().count(), 2); }},
    Field{u"n", [](const CivilTime& civil) { return digits(civil.time.minutes().count(), 1); }},
    Field{u"ss", [](const CivilTime& civil) { return digits(civil.time.seconds().count(), 2); }},
    Field{u"s", [](const CivilTime& civil) { return digits(civil.time.seconds().count(), 1); }},
};

}  // namespace

std::u16string format_date(Date date, std::u16string_view pattern) {
    const CivilTime civil = to_civil(date);
    const std::u16string lower = to_lower(pattern);
    std::u16string result;
    for (std::size_t place = 0; place < pattern.size();) {
        const std::u16string_view rest = std::u16string_view(lower).substr(place);
        const auto* field =
            std::ranges::find_if(fields, [&](const Field& row) { return rest.starts_with(row.letters); });
        if (field == fields.end()) {
            result += pattern[place++];
        } else {
            result += field->text(civil);
            place += field->letters.size();
        }
    }
    return result;
}

std::u16string to_iso(Date date) {
    const bool is_midnight = to_civil(date).time.to_duration().count() == 0;
    return format_date(date, u"yyyy-mm-dd") + (is_midnight ? u"" : u"T" + format_date(date, u"hh:nn:ss"));
}

}  // namespace qor
