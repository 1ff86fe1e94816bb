#include "runtime/locale.hpp"

#include <utility>

#include "runtime/system_locale.hpp"

namespace qor {
namespace {

Locale& current() {
    static Locale held = system_locale();
    return held;
}

}  // namespace

const Locale& english_locale() {
    static const Locale english{
        .month_names = {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August", u"September",
                        u"October", u"November", u"December"},
        .month_abbreviations = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov",
                                u"Dec"},
        .weekday_names = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"},
        .weekday_abbreviations = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"},
        .morning = u"AM",
        .afternoon = u"PM",
        .date_order = DateOrder::month_day_year,
        .date_separator = u'/',
        .time_separator = u':',
        .short_date = u"m/d/yyyy",
        .long_date = u"dddd, mmmm d, yyyy",
        .long_time = u"h:nn:ss AMPM",
        .first_day_of_week = 1,
        .first_week_of_year = 1,
        .decimal_point = u'.',
        .thousands_separator = u',',
        .currency_sign = u"$",
        .currency_pattern = u"$#,##0.00;($#,##0.00)",
    };
    return english;
}

const Locale& locale() {
    return current();
}

void set_locale(Locale chosen) {
    current() = std::move(chosen);
}

}  // namespace qor
