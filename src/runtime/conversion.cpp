#include "runtime/conversion.hpp"

#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

#include "platform/text.hpp"
#include "runtime/calendar.hpp"
#include "runtime/date_text.hpp"
#include "runtime/format_date.hpp"
#include "runtime/number_text.hpp"

namespace qor {
namespace {

constexpr double ten_thousandths_per_unit = 10'000;

// What a value that converts to nothing raises.
struct Refusal {
    [[noreturn]] static void raise(ErrorNumber number) { throw Error(number); }
    [[noreturn]] static void refuse(Null) { raise(ErrorNumber::invalid_use_of_null); }
    [[noreturn]] static void refuse(Missing) { raise(ErrorNumber::argument_not_optional); }
    [[noreturn]] static void refuse(ErrorValue) { raise(ErrorNumber::type_mismatch); }
    [[noreturn]] static void refuse(const std::shared_ptr<const Array>&) { raise(ErrorNumber::type_mismatch); }
};

// The value that an object stands for, such as that of a cell. One that stands for another object stands for none.
Variant value_of(const Object& object) {
    if (!object) throw Error(ErrorNumber::object_not_set);
    Variant value = object.target()->default_value();
    if (value.is(Variant::Kind::object)) throw Error(ErrorNumber::no_such_member);
    return value;
}

template <class T>
concept Convertible = !requires(const T& value) {
    Refusal::refuse(value);
};

struct ToDouble : Refusal {
    double operator()(Empty) const { return 0; }
    double operator()(bool value) const { return value ? -1 : 0; }
    template <class Number>
    requires std::is_arithmetic_v<Number>
    double operator()(Number value) const { return static_cast<double>(value); }
    double operator()(Currency value) const {
        return static_cast<double>(value.ten_thousandths) / ten_thousandths_per_unit;
    }
    double operator()(Date value) const { return value.serial; }
    double operator()(const std::u16string& value) const { return parse_number(value); }
    double operator()(const Object& value) const { return to_double(value_of(value)); }
    template <class Other>
    requires(!Convertible<Other>) double operator()(const Other& value) const { refuse(value); }
};

struct ToText : Refusal {
    std::u16string operator()(Empty) const { return {}; }
    std::u16string operator()(bool value) const { return value ? u"True" : u"False"; }
    std::u16string operator()(std::int16_t value) const { return whole_number(value); }
    std::u16string operator()(std::int32_t value) const { return whole_number(value); }
    std::u16string operator()(float value) const { return number_text(value); }
    std::u16string operator()(double value) const { return number_text(value); }
    std::u16string operator()(Currency value) const { return number_text(value); }
    std::u16string operator()(Date value) const { return general_date(value); }
    std::u16string operator()(const std::u16string& value) const { return value; }
    std::u16string operator()(const Object& value) const { return to_text(value_of(value)); }
    std::u16string operator()(ErrorValue value) const { return u"Error " + whole_number(value.code); }
    template <class Other>
    requires(!Convertible<Other>) std::u16string operator()(const Other& value) const { refuse(value); }

  private:
    static std::u16string whole_number(std::int32_t value) {
        const std::string text = std::to_string(value);
        return {text.begin(), text.end()};
    }
};

template <class Whole>
Whole to_whole(const Variant& value) {
    if (const auto* held = value.get_if<Whole>()) return *held;
    const double rounded = std::nearbyint(to_double(value));
    constexpr std::numeric_limits<Whole> limits;
    // Written so that what is no number at all is out of range as well.
    if (!(rounded >= limits.min() && rounded <= limits.max())) throw Error(ErrorNumber::overflow);
    return static_cast<Whole>(rounded);
}

Currency round_to_currency(double value) {
    constexpr long double least_beyond = 9223372036854775808.0L;
    // The wider mantissa holds the product exactly, so that a tie is a tie.
    const long double scaled = std::nearbyint(static_cast<long double>(value) * 10'000);
    if (!(scaled >= -least_beyond && scaled < least_beyond)) throw Error(ErrorNumber::overflow);
    return {static_cast<std::int64_t>(scaled)};
}

}  // namespace

bool to_boolean(const Variant& value) {
    if (const auto* object = value.get_if<Object>()) return to_boolean(value_of(*object));
    if (const auto* held = value.get_if<bool>()) return *held;
    if (const auto* text = value.get_if<std::u16string>()) {
        if (equal_ignoring_case(*text, u"True")) return true;
        if (equal_ignoring_case(*text, u"False")) return false;
    }
    return to_double(value) != 0;
}

std::int16_t to_integer(const Variant& value) {
    return to_whole<std::int16_t>(value);
}

std::int32_t to_long(const Variant& value) {
    return to_whole<std::int32_t>(value);
}

float to_single(const Variant& value) {
    if (const auto* held = value.get_if<float>()) return *held;
    const double wide = to_double(value);
    const auto narrow = static_cast<float>(wide);
    if (std::isinf(narrow) && !std::isinf(wide)) throw Error(ErrorNumber::overflow);
    return narrow;
}

double to_double(const Variant& value) {
    return value.visit(ToDouble{});
}

Currency to_currency(const Variant& value) {
    if (const auto* object = value.get_if<Object>()) return to_currency(value_of(*object));
    if (const auto* held = value.get_if<Currency>()) return *held;
    if (const auto* text = value.get_if<std::u16string>()) return parse_currency(*text);
    return round_to_currency(to_double(value));
}

Date to_date(const Variant& value) {
    if (const auto* object = value.get_if<Object>()) return to_date(value_of(*object));
    if (const auto* text = value.get_if<std::u16string>()) {
        if (const std::optional<Date> shown = parse_date(*text)) return *shown;
    }
    const Date date{to_double(value)};
    if (!is_in_calendar(date)) throw Error(ErrorNumber::overflow);
    return date;
}

std::u16string to_text(const Variant& value) {
    return value.visit(ToText{});
}

Object to_object(const Variant& value) {
    if (value.is_missing()) throw Error(ErrorNumber::argument_not_optional);
    return value.object();
}

}  // namespace qor
