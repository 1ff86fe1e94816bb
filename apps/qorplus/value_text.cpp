#include "apps/qorplus/value_text.hpp"

#include <fmt/format.h>

#include <charconv>
#include <chrono>
#include <cmath>
#include <optional>

#include "apps/qorplus/usage_error.hpp"
#include "platform/text.hpp"
#include "runtime/calendar.hpp"

namespace qor::cli {
namespace {

constexpr std::string_view text_prefix = "text:";
constexpr std::string_view date_prefix = "date:";
constexpr std::string_view omitted = "omitted";

std::optional<double> parse_number(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = problem == std::errc() && end == text.data() + text.size();
    return whole && std::isfinite(value) ? std::optional(value) : std::nullopt;  // "inf" and "nan" are words here
}

// `count` digits at the front of the text, which are taken off, and the separator behind them if one is wanted.
std::optional<int> take_digits(std::string_view& text, std::size_t count, char separator = 0) {
    int value = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + std::min(count, text.size()), value);
    if (problem != std::errc() || value < 0 || end != text.data() + count) return std::nullopt;
    text.remove_prefix(count);
    if (separator != 0) {
        if (!text.starts_with(separator)) return std::nullopt;
        text.remove_prefix(1);
    }
    return value;
}

std::optional<Date> parse_date(std::string_view text) {
    const auto year = take_digits(text, 4, '-');
    const auto month = year ? take_digits(text, 2, '-') : std::nullopt;
    const auto day = month ? take_digits(text, 2) : std::nullopt;
    if (!day) return std::nullopt;
    const std::chrono::year_month_day civil{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                                            std::chrono::day(static_cast<unsigned>(*day))};
    if (!civil.ok() || *year < 100) return std::nullopt;
    if (text.empty()) return to_date(civil);
    if (!text.starts_with('T')) return std::nullopt;
    text.remove_prefix(1);
    const auto hours = take_digits(text, 2, ':');
    const auto minutes = hours ? take_digits(text, 2, ':') : std::nullopt;
    const auto seconds = minutes ? take_digits(text, 2) : std::nullopt;
    if (!seconds || !text.empty() || *hours > 23 || *minutes > 59 || *seconds > 59) return std::nullopt;
    return to_date(civil, std::chrono::hours(*hours) + std::chrono::minutes(*minutes) + std::chrono::seconds(*seconds));
}

struct Show {
    std::string operator()(Empty) const { return {}; }
    std::string operator()(Null) const { return {}; }
    std::string operator()(Missing) const { return {}; }
    std::string operator()(bool value) const { return value ? "TRUE" : "FALSE"; }
    std::string operator()(Currency value) const {
        return fmt::format("{}", static_cast<double>(value.ten_thousandths) / 10'000);
    }
    std::string operator()(Date value) const { return to_utf8(to_iso(value)); }
    std::string operator()(const std::u16string& value) const { return to_utf8(value); }
    std::string operator()(ErrorValue value) const { return fmt::format("Error {}", value.code); }
    std::string operator()(const Object& value) const {
        return value ? to_utf8(value.target()->type_name()) : "Nothing";
    }
    std::string operator()(const std::shared_ptr<const Array>& value) const {
        std::string lines;
        for (std::size_t place = 0; place < value->size(); ++place) {
            if (place > 0) lines += place % value->columns() == 0 ? '\n' : '\t';
            lines += show_value(value->at(place));
        }
        return lines;
    }
    template <class Number>
    std::string operator()(Number value) const {
        return fmt::format("{}", value);
    }
};

}  // namespace

Variant parse_value(std::string_view text) {
    if (const auto number = parse_number(text)) return *number;
    if (text == "TRUE") return true;
    if (text == "FALSE") return false;
    if (text == omitted) return Missing{};
    if (text.starts_with(date_prefix)) {
        if (const auto date = parse_date(text.substr(date_prefix.size()))) return *date;
        throw UsageError(fmt::format("{} is no date; write date:YYYY-MM-DD or date:YYYY-MM-DDTHH:MM:SS", text));
    }
    if (text.starts_with(text_prefix)) text.remove_prefix(text_prefix.size());
    return from_utf8(text);
}

std::string write_value(const Variant& value) {
    if (value.is_missing()) return std::string(omitted);
    std::string text = show_value(value);
    if (value.is(Variant::Kind::date)) return text.insert(0, date_prefix);
    const bool reads_as_itself =
        !value.is(Variant::Kind::text) ||
        (!text.starts_with(date_prefix) && !text.starts_with(text_prefix) && parse_value(text).is(Variant::Kind::text));
    return reads_as_itself ? text : text.insert(0, text_prefix);
}

std::string show_value(const Variant& value) {
    return value.visit(Show{});
}

}  // namespace qor::cli
