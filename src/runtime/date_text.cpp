#include "runtime/date_text.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <span>
#include <utility>

#include "platform/text.hpp"
#include "runtime/calendar.hpp"
#include "runtime/clock.hpp"
#include "runtime/locale.hpp"
#include "runtime/text_reader.hpp"

namespace qor {
namespace {

using namespace std::chrono;

struct Number {
    int value = 0;
    bool is_month_name = false;
    bool continues_time = false;  // a time separator joins it to the number before
};

enum class HalfOfDay : std::uint8_t { none, morning, afternoon };

// The text's numbers, and which of them the AM or PM follows.
class DateFields {
  public:
    // False if the text holds anything but fields and the separators between them.
    bool read(std::u16string_view text) {
        TextReader reader(text);
        reader.skip_blanks();
        while (!reader.at_end()) {
            if (!read_field(reader)) return false;
            if (take_time_separator(reader)) continue;
            if (!skip_separator(reader)) return false;
        }
        return true;
    }

    std::span<const Number> numbers() const { return {numbers_.data(), count_}; }
    HalfOfDay half_of_day() const { return half_; }
    std::size_t half_place() const { return half_place_; }

  private:
    static constexpr int greatest = 9999;

    bool read_field(TextReader& reader) {
        Number number{.continues_time = std::exchange(is_time_joined_, false)};
        if (reader.at_digit()) {
            while (reader.at_digit()) number.value = std::min(number.value * 10 + (reader.take() - u'0'), greatest + 1);
            return number.value <= greatest && add(number);
        }
        if (number.continues_time) return false;
        const std::u16string_view word = take_word(reader);
        if (const int month = month_of(word)) {
            if (!reader.at_end() && reader.next() == u'.') reader.take();  // of an abbreviation
            return add({.value = month, .is_month_name = true});
        }
        return read_half(word);
    }

    bool add(const Number& number) {
        if (count_ == numbers_.size()) return false;
        numbers_[count_++] = number;
        return true;
    }

    bool read_half(std::u16string_view word) {
        if (half_ != HalfOfDay::none || count_ == 0) return false;
        const auto is_any = [&](std::u16string_view full, std::u16string_view letter, std::u16string_view local) {
            return equal_ignoring_case(word, full) || equal_ignoring_case(word, letter) ||
                   (!local.empty() && equal_ignoring_case(word, local));
        };
        if (is_any(u"AM", u"A", country_.morning)) half_ = HalfOfDay::morning;
        if (is_any(u"PM", u"P", country_.afternoon)) half_ = HalfOfDay::afternoon;
        half_place_ = count_ - 1;
        return half_ != HalfOfDay::none;
    }

    static std::u16string_view take_word(TextReader& reader) {
        const std::u16string_view start = reader.rest();
        while (!reader.at_end() && !reader.at_digit() && !is_blank(reader.next()) && !reader.at(u"/-,.:")) {
            reader.take();
        }
        return start.substr(0, start.size() - reader.rest().size());
    }

    int month_of(std::u16string_view word) const {
        if (word.empty()) return 0;
        for (std::size_t place = 0; place < country_.month_names.size(); ++place) {
            std::u16string_view abbreviation = country_.month_abbreviations[place];
            if (abbreviation.ends_with(u'.')) abbreviation.remove_suffix(1);
            if (equal_ignoring_case(word, country_.month_names[place]) || equal_ignoring_case(word, abbreviation)) {
                return static_cast<int>(place) + 1;
            }
        }
        return 0;
    }

    // A point separates the parts of a time, unless it is the locale's separator in dates.
    bool take_time_separator(TextReader& reader) {
        const std::u16string_view rest = reader.rest();
        if (rest.size() < 2 || !is_digit(rest[1])) return false;
        const bool is_separator =
            rest.front() == u':' || rest.front() == country_.time_separator || rest.front() == u'.';
        if (!is_separator || rest.front() == country_.date_separator) return false;
        reader.take();
        is_time_joined_ = true;
        return true;
    }

    // Blanks with at most one mark among them, which must not be the last of the text.
    bool skip_separator(TextReader& reader) const {
        reader.skip_blanks();
        if (reader.at_end()) return true;
        const bool is_mark = reader.at(u"/-,") || reader.next() == country_.date_separator;
        if (!is_mark) return true;
        reader.take();
        reader.skip_blanks();
        return !reader.at_end();
    }

    const Locale& country_ = locale();
    std::array<Number, 6> numbers_;
    std::size_t count_ = 0;
    HalfOfDay half_ = HalfOfDay::none;
    std::size_t half_place_ = 0;
    bool is_time_joined_ = false;
};

std::optional<year_month_day> date_of(int its_year, int its_month, int its_day) {
    if (its_year < 100) its_year += its_year < 30 ? 2000 : 1900;
    const year_month_day day{year{its_year}, month{static_cast<unsigned>(its_month)},
                             std::chrono::day{static_cast<unsigned>(its_day)}};
    // A month or day beyond 255 would wrap round in the calendar's types.
    if (its_month > 12 || its_day > 31 || !day.ok()) return std::nullopt;
    return day;
}

constexpr std::size_t absent = 3;

// Which of a text's numbers is which part.
struct Order {
    std::size_t year;
    std::size_t month;
    std::size_t day;
};

constexpr Order month_day_year{2, 0, 1};
constexpr Order day_month_year{2, 1, 0};
constexpr Order year_month_day_order{0, 1, 2};
constexpr Order year_day_month{0, 2, 1};
constexpr Order month_day{absent, 0, 1};
constexpr Order day_month{absent, 1, 0};
constexpr Order year_month{0, 1, absent};
constexpr Order month_year{1, 0, absent};

// By the locale's order, which is the index: its own first, then the others as the automation library of Windows tries
// them.
constexpr std::array<std::array<Order, 4>, 3> orders_of_three{{
    {month_day_year, year_month_day_order, year_day_month, day_month_year},
    {day_month_year, year_month_day_order, month_day_year, year_day_month},
    {year_month_day_order, month_day_year, year_day_month, day_month_year},
}};
constexpr std::array<std::array<Order, 4>, 3> orders_of_two{{
    {month_day, day_month, year_month, month_year},
    {day_month, month_day, year_month, month_year},
    {month_day, day_month, year_month, month_year},
}};

std::optional<year_month_day> date_of(std::span<const Number> numbers) {
    if (numbers.size() != 2 && numbers.size() != 3) return std::nullopt;
    const auto& orders = numbers.size() == 2 ? orders_of_two : orders_of_three;
    for (const Order& order : orders[static_cast<std::size_t>(locale().date_order)]) {
        bool fits = true;
        for (std::size_t place = 0; place < numbers.size(); ++place) {
            if (numbers[place].is_month_name && place != order.month) fits = false;
        }
        if (!fits) continue;
        const int its_year =
            order.year == absent ? static_cast<int>(to_civil(today()).day.year()) : numbers[order.year].value;
        const int its_day = order.day == absent ? 1 : numbers[order.day].value;
        if (const auto date = date_of(its_year, numbers[order.month].value, its_day)) return date;
    }
    return std::nullopt;
}

// The numbers that make up the time: first and one behind the last. Nothing if there is none or it is none.
struct TimePlace {
    std::size_t begin = 0;
    std::size_t end = 0;
    bool is_valid = true;
};

TimePlace time_place(const DateFields& fields) {
    const std::span<const Number> numbers = fields.numbers();
    TimePlace place;
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        if (!numbers[at].continues_time) continue;
        if (place.end == 0) {
            place.begin = at - 1;
        } else if (place.end != at) {
            place.is_valid = false;
        }
        place.end = at + 1;
    }
    if (fields.half_of_day() != HalfOfDay::none) {
        const std::size_t behind = fields.half_place() + 1;
        if (place.end == 0) {
            place.begin = behind - 1;
            place.end = behind;
        } else if (place.end != behind) {
            place.is_valid = false;
        }
    }
    return place;
}

std::optional<seconds> time_of(std::span<const Number> numbers, HalfOfDay half) {
    std::array<int, 3> parts{};
    if (numbers.size() > parts.size()) return std::nullopt;
    for (std::size_t place = 0; place < numbers.size(); ++place) {
        if (numbers[place].is_month_name) return std::nullopt;
        parts[place] = numbers[place].value;
    }
    auto [hour, minute, second] = parts;
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
    if (half == HalfOfDay::afternoon && hour < 12) hour += 12;
    if (half == HalfOfDay::morning && hour == 12) hour = 0;
    return hours{hour} + minutes{minute} + seconds{second};
}

}  // namespace

std::optional<Date> parse_date(std::u16string_view text) {
    DateFields fields;
    if (!fields.read(text)) return std::nullopt;
    const std::span<const Number> numbers = fields.numbers();
    const TimePlace place = time_place(fields);
    if (numbers.empty() || !place.is_valid) return std::nullopt;
    const std::optional<seconds> time =
        time_of(numbers.subspan(place.begin, place.end - place.begin), fields.half_of_day());
    if (!time) return std::nullopt;
    // The time comes before the date or behind it.
    if (place.begin != 0 && place.end != numbers.size()) return std::nullopt;
    const std::span<const Number> day_numbers =
        place.begin == 0 ? numbers.subspan(place.end) : numbers.first(place.begin);
    if (day_numbers.empty()) return to_date(std::int64_t{0}, duration<double, days::period>(*time).count());
    const std::optional<year_month_day> day = date_of(day_numbers);
    if (!day) return std::nullopt;
    return to_date(*day, *time);
}

}  // namespace qor
