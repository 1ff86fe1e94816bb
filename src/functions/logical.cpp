#include <string_view>

#include "functions/between.hpp"
#include "functions/families.hpp"
#include "platform/text.hpp"
#include "runtime/clock.hpp"
#include "runtime/format.hpp"
#include "runtime/like.hpp"
#include "runtime/trim.hpp"
#include "runtime/value_tests.hpp"

// Tests of values. What faults is false.
namespace qor {
namespace {

// The `length` units from a position counted from 1, to the end where the length is below 1. A position outside of the
// text finds nothing, not even the empty text.
std::u16string_view part_of(std::u16string_view text, std::int32_t start, std::int32_t length) {
    if (start < 1) return {};
    const std::size_t begin = std::min(static_cast<std::size_t>(start) - 1, text.size());
    return text.substr(begin, length < 1 ? text.npos : static_cast<std::size_t>(length));
}

bool contains(std::u16string_view text, std::u16string_view searched, bool is_case_sensitive) {
    if (text.empty()) return false;
    if (is_case_sensitive) return text.find(searched) != text.npos;
    return to_upper(text).find(to_upper(searched)) != text.npos;
}

bool is_time(const Variant& value) {
    const std::u16string text = to_text(value);
    return !trim(text).empty() && is_date(format(today(), u"Short Date") + u' ' + text);
}

}  // namespace

std::vector<FunctionDeclaration> logical_functions() {
    return {
        {.name = u"BETWEEN",
         .help_id = 140000,
         .description = u"Returns whether a value lies between values of two other values.",
         .parameters = {u"vTestValue", u"vLowValue", u"vHighValue"},
         .formula = [](const Variant& vTestValue, const Variant& vLowValue,
                       const Variant& vHighValue) { return between(vTestValue, vLowValue, vHighValue); },
         .examples = {{{5, 4, 10}, true}, {{5, 5, 10}, false}, {{u"b", u"a", u"c"}, true}}},
        {.name = u"CONTAINS",
         .help_id = 140005,
         .description = u"Returns whether a string is within another string.",
         .parameters = {u"sString", u"sSearch4", {u"lStart", 1}, {u"lLength", Missing{}}, {u"bCaseSens", false}},
         .formula = [](const std::u16string& sString, const std::u16string& sSearch4, std::int32_t lStart,
                       std::int32_t lLength,
                       bool bCaseSens) { return contains(part_of(sString, lStart, lLength), sSearch4, bCaseSens); },
         .examples = {{{u"abc", u"B"}, true},
                      {{u"abc", u"B", 1, 3, true}, false},
                      {{u"abcdef", u"e", 2, 2}, false},
                      {{u"abcdef", u"e", 2, 4}, true}}},
        {.name = u"ISDATE",
         .help_id = 140010,
         .description = u"Returns whether a date is valid.",
         .parameters = {u"vDt"},
         .formula = [](const Variant& vDt) { return is_date(vDt); },
         .examples = {{{u"3/15/2004"}, true}, {{u"13/13/2003"}, false}}},
        {.name = u"ISLEAPYEAR",
         .help_id = 140015,
         .description = u"Returns whether the year is a leap year.",
         .parameters = {u"lYYYY"},
         .formula = [](std::int32_t lYYYY) { return is_date(u"02/29/" + to_text(lYYYY)); },
         .examples = {{{2000}, true}, {{1900}, false}}},
        {.name = u"ISLIKE",
         .help_id = 140020,
         .description = u"Returns whether two strings are alike.",
         .parameters = {u"sString", u"sPattern"},
         .formula = [](const std::u16string& sString,
                       const std::u16string& sPattern) { return like(sString, sPattern); },
         .examples = {{{u"Q3 2004", u"Q# ####"}, true}, {{u"q3 2004", u"Q# ####"}, false}}},
        {.name = u"ISTIME",
         .help_id = 140025,
         .description = u"Returns whether the time is valid.",
         .parameters = {u"vTime"},
         .formula = [](const Variant& vTime) { return is_time(vTime); },
         .examples = {{{u"12:30"}, true}, {{u"25:00"}, false}, {{u""}, false}}},
    };
}

}  // namespace qor
