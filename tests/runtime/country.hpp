#pragma once

#include <functional>
#include <utility>

#include "runtime/clock.hpp"
#include "runtime/locale.hpp"

namespace qor::test {

// The process's country for as long as this lives.
class Country {
  public:
    explicit Country(const Locale& chosen) : former_(locale()) { set_locale(chosen); }
    Country(const Country&) = delete;
    Country& operator=(const Country&) = delete;
    ~Country() { set_locale(std::move(former_)); }

  private:
    Locale former_;
};

// The clock tells one moment for as long as this lives.
class TimeStopped {
  public:
    explicit TimeStopped(Date moment) : former_(wall_clock()) {
        wall_clock() = [moment] { return moment; };
    }
    TimeStopped(const TimeStopped&) = delete;
    TimeStopped& operator=(const TimeStopped&) = delete;
    ~TimeStopped() { wall_clock() = former_; }

  private:
    std::function<Date()> former_;
};

inline Locale german_locale() {
    Locale german = english_locale();
    german.month_names = {u"Januar", u"Februar", u"März",      u"April",   u"Mai",      u"Juni",
                          u"Juli",   u"August",  u"September", u"Oktober", u"November", u"Dezember"};
    german.month_abbreviations = {u"Jan", u"Feb", u"Mär", u"Apr", u"Mai", u"Jun",
                                  u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
    german.weekday_names = {u"Sonntag", u"Montag", u"Dienstag", u"Mittwoch", u"Donnerstag", u"Freitag", u"Samstag"};
    german.weekday_abbreviations = {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};
    german.date_order = DateOrder::day_month_year;
    german.date_separator = u'.';
    german.short_date = u"dd.mm.yyyy";
    german.long_date = u"dddd, d. mmmm yyyy";
    german.long_time = u"hh:nn:ss";
    german.first_day_of_week = 2;
    german.first_week_of_year = 2;
    german.decimal_point = u',';
    german.thousands_separator = u'.';
    german.currency_sign = u"€";
    german.currency_pattern = u"#,##0.00 \"€\";-#,##0.00 \"€\"";
    return german;
}

}  // namespace qor::test
