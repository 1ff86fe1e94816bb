#include "runtime/format.hpp"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "runtime/format_date.hpp"
#include "runtime/format_number.hpp"
#include "runtime/format_text.hpp"
#include "runtime/locale.hpp"
#include "runtime/value_tests.hpp"

namespace qor {
namespace {

struct NamedFormat {
    std::u16string_view name;
    std::u16string_view (*pattern)();
};

constexpr std::u16string_view general_number = u"General Number";

constexpr std::array named_formats{
    NamedFormat{u"Currency", [] { return std::u16string_view(locale().currency_pattern); }},
    NamedFormat{u"Fixed", [] { return std::u16string_view(u"0.00"); }},
    NamedFormat{u"Standard", [] { return std::u16string_view(u"#,##0.00"); }},
    NamedFormat{u"Percent", [] { return std::u16string_view(u"0.00%"); }},
    NamedFormat{u"Scientific", [] { return std::u16string_view(u"0.00E+00"); }},
    NamedFormat{u"Yes/No", [] { return std::u16string_view(u"\"Yes\";\"Yes\";\"No\""); }},
    NamedFormat{u"True/False", [] { return std::u16string_view(u"\"True\";\"True\";\"False\""); }},
    NamedFormat{u"On/Off", [] { return std::u16string_view(u"\"On\";\"On\";\"Off\""); }},
    NamedFormat{u"General Date", [] { return std::u16string_view(u"c"); }},
    NamedFormat{u"Long Date", [] { return std::u16string_view(u"dddddd"); }},
    NamedFormat{u"Medium Date", [] { return std::u16string_view(u"dd-mmm-yy"); }},
    NamedFormat{u"Short Date", [] { return std::u16string_view(u"ddddd"); }},
    NamedFormat{u"Long Time", [] { return std::u16string_view(u"ttttt"); }},
    NamedFormat{u"Medium Time", [] { return std::u16string_view(u"hh:nn AM/PM"); }},
    NamedFormat{u"Short Time", [] { return std::u16string_view(u"hh:nn"); }},
};

std::u16string_view resolved(std::u16string_view pattern) {
    const auto* row = std::ranges::find_if(
        named_formats, [&](const NamedFormat& one) { return equal_ignoring_case(one.name, pattern); });
    return row == named_formats.end() ? pattern : row->pattern();
}

enum class Meaning : std::uint8_t { number, date, text };

// Told by the first sign that belongs to one meaning alone; separators decide only where nothing else does.
Meaning meaning_of(Symbols pattern) {
    Meaning meaning = Meaning::number;
    for (Symbols rest = pattern; !rest.empty(); rest = rest.subspan(1)) {
        const Symbol& symbol = rest.front();
        if (symbol.is_literal) continue;
        const auto is_one_of = [&](std::u16string_view signs) {
            return signs.find(symbol.character) != std::u16string_view::npos;
        };
        if (is_one_of(u"0#%")) return Meaning::number;
        if (is_one_of(u"@&<>!")) return Meaning::text;
        if (starts_date_field(rest)) return Meaning::date;
        if (is_one_of(u"/:")) meaning = Meaning::date;
    }
    return meaning;
}

}  // namespace

std::u16string format(const Variant& value, std::u16string_view pattern, std::int32_t first_day_of_week,
                      std::int32_t first_week_of_year) {
    using Kind = Variant::Kind;
    const bool is_null = value.is(Kind::null);
    const auto* text = value.get_if<std::u16string>();
    if (pattern.empty()) return is_null ? std::u16string() : to_text(value);
    if (equal_ignoring_case(pattern, general_number)) {
        if (is_null || (text && !is_numeric(value))) return text ? *text : std::u16string();
        return to_text(value.is(Kind::date) || value.is(Kind::boolean) || text ? Variant(to_double(value)) : value);
    }

    const std::vector<Symbol> symbols = parse_pattern(resolved(pattern));
    switch (meaning_of(symbols)) {
        case Meaning::text:
            return format_text(is_null ? std::u16string() : to_text(value), symbols);
        case Meaning::date: {
            if (is_null) return {};
            Date date;
            const std::int32_t failure = attempt([&] { date = to_date(value); });
            if (failure != 0 && text) return *text;
            return format_date(failure == 0 ? date : to_date(value), symbols, first_day_of_week, first_week_of_year);
        }
        case Meaning::number:
            break;
    }
    if (!text) return format_number(value, symbols);
    return is_numeric(value) ? format_number(to_double(value), symbols) : *text;
}

}  // namespace qor
