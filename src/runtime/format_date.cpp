#include "runtime/format_date.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "runtime/dates.hpp"
#include "runtime/locale.hpp"

namespace qor {
namespace {

struct Context {
    Date date;
    std::int32_t first_day_of_week;
    std::int32_t first_week_of_year;
    bool has_halves;  // the hour counts to 12
    CivilTime civil = to_civil(date);
};

std::u16string digits(std::int64_t number, std::size_t least_count) {
    const std::string text = std::to_string(number);
    std::u16string result(least_count > text.size() ? least_count - text.size() : 0, u'0');
    return result.append(text.begin(), text.end());
}

std::u16string part(const Context& context, std::u16string_view interval, std::size_t least_count) {
    return digits(date_part(interval, context.date, context.first_day_of_week, context.first_week_of_year),
                  least_count);
}

std::u16string weekday(const Context& context, bool abbreviate) {
    return weekday_name(static_cast<std::int32_t>(context.civil.weekday.c_encoding()) + 1, abbreviate, 1);
}

std::u16string month(const Context& context, bool abbreviate) {
    return month_name(static_cast<std::int32_t>(static_cast<unsigned>(context.civil.day.month())), abbreviate);
}

std::u16string hour(const Context& context, std::size_t least_count) {
    const auto hours = context.civil.time.hours();
    return digits((context.has_halves ? std::chrono::make12(hours) : hours).count(), least_count);
}

bool is_morning(const Context& context) {
    return std::chrono::is_am(context.civil.time.hours());
}

std::u16string by(const Context& context, std::u16string_view pattern) {
    return format_date(context.date, parse_pattern(pattern), context.first_day_of_week, context.first_week_of_year);
}

enum class Field : std::uint8_t { other, hour, month, half };

struct FieldRow {
    std::u16string_view letters;
    std::u16string (*text)(const Context&);
    Field field = Field::other;
};

using Cx = const Context&;

// The longer run of a letter comes before the shorter.
constexpr std::array field_rows{
    FieldRow{u"c", [](Cx c) { return general_date(c.date); }},
    FieldRow{u"dddddd", [](Cx c) { return by(c, locale().long_date); }},
    FieldRow{u"ddddd", [](Cx c) { return by(c, locale().short_date); }},
    FieldRow{u"dddd", [](Cx c) { return weekday(c, false); }},
    FieldRow{u"ddd", [](Cx c) { return weekday(c, true); }},
    FieldRow{u"dd", [](Cx c) { return part(c, u"d", 2); }},
    FieldRow{u"d", [](Cx c) { return part(c, u"d", 1); }},
    FieldRow{u"ww", [](Cx c) { return part(c, u"ww", 1); }},
    FieldRow{u"w", [](Cx c) { return part(c, u"w", 1); }},
    FieldRow{u"mmmm", [](Cx c) { return month(c, false); }},
    FieldRow{u"mmm", [](Cx c) { return month(c, true); }},
    FieldRow{u"mm", [](Cx c) { return part(c, u"m", 2); }, Field::month},
    FieldRow{u"m", [](Cx c) { return part(c, u"m", 1); }, Field::month},
    FieldRow{u"q", [](Cx c) { return part(c, u"q", 1); }},
    FieldRow{u"yyyy", [](Cx c) { return part(c, u"yyyy", 4); }},
    FieldRow{u"yy", [](Cx c) { return digits(static_cast<int>(c.civil.day.year()) % 100, 2); }},
    FieldRow{u"y", [](Cx c) { return part(c, u"y", 1); }},
    FieldRow{u"hh", [](Cx c) { return hour(c, 2); }, Field::hour},
    FieldRow{u"h", [](Cx c) { return hour(c, 1); }, Field::hour},
    FieldRow{u"nn", [](Cx c) { return part(c, u"n", 2); }},
    FieldRow{u"n", [](Cx c) { return part(c, u"n", 1); }},
    FieldRow{u"ss", [](Cx c) { return part(c, u"s", 2); }},
    FieldRow{u"s", [](Cx c) { return part(c, u"s", 1); }},
    FieldRow{u"ttttt", [](Cx c) { return by(c, locale().long_time); }},
    FieldRow{u"ampm", [](Cx c) { return is_morning(c) ? locale().morning : locale().afternoon; }, Field::half},
    FieldRow{u"am/pm", [](Cx c) { return std::u16string(is_morning(c) ? u"AM" : u"PM"); }, Field::half},
    FieldRow{u"a/p", [](Cx c) { return std::u16string(is_morning(c) ? u"A" : u"P"); }, Field::half},
};

const FieldRow* field_at(Symbols pattern) {
    const auto* row =
        std::ranges::find_if(field_rows, [&](const FieldRow& one) { return starts_with(pattern, one.letters); });
    return row == field_rows.end() ? nullptr : row;
}

bool has_halves(Symbols pattern) {
    for (; !pattern.empty(); pattern = pattern.subspan(1)) {
        const FieldRow* row = field_at(pattern);
        if (row && row->field == Field::half) return true;
    }
    return false;
}

// AM and PM come in the case of the pattern, the country's own words as they are.
std::u16string text_of(const FieldRow& row, const Context& context, Symbols pattern) {
    std::u16string text = row.text(context);
    if (row.field == Field::half && row.letters != u"ampm" && pattern.front().character == u'a') {
        std::ranges::transform(text, text.begin(), [](char16_t c) { return static_cast<char16_t>(c - u'A' + u'a'); });
    }
    return text;
}

}  // namespace

bool starts_date_field(Symbols pattern) {
    return field_at(pattern) != nullptr;
}

std::u16string format_date(Date date, Symbols pattern, std::int32_t first_day_of_week,
                           std::int32_t first_week_of_year) {
    const Context context{.date = date,
                          .first_day_of_week = first_day_of_week,
                          .first_week_of_year = first_week_of_year,
                          .has_halves = has_halves(pattern)};
    std::u16string result;
    Field before = Field::other;
    while (!pattern.empty()) {
        const FieldRow* row = field_at(pattern);
        if (!row) {
            const Symbol& symbol = pattern.front();
            const bool is_date_separator = symbol.is(u'/');
            const bool is_time_separator = symbol.is(u':');
            result += is_date_separator   ? locale().date_separator
                      : is_time_separator ? locale().time_separator
                                          : symbol.character;
            pattern = pattern.subspan(1);
            continue;
        }
        const bool is_minute = row->field == Field::month && before == Field::hour;
        result += is_minute ? part(context, u"n", row->letters.size()) : text_of(*row, context, pattern);
        before = row->field;
        pattern = pattern.subspan(row->letters.size());
    }
    return result;
}

std::u16string general_date(Date date) {
    const Context context{.date = date, .first_day_of_week = 1, .first_week_of_year = 1, .has_halves = false};
    std::u16string day = by(context, locale().short_date);
    if (context.civil.time.to_duration().count() == 0) return day;
    const std::u16string time = by(context, locale().long_time);
    return std::trunc(date.serial) == 0 ? time : day + u' ' + time;
}

}  // namespace qor
