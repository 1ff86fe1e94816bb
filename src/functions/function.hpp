#pragma once

#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "automation/variant.hpp"
#include "runtime/checked.hpp"
#include "runtime/conversion.hpp"
#include "runtime/rounding.hpp"

namespace qor {

struct Function;

// The category's number in the host's function dialog.
enum class Category : std::int32_t { financial = 1, date_and_time = 2, text = 7, logical = 8, information = 9 };

enum class ValueKind : std::uint8_t { number, whole_number, variant, text, boolean };

// What becomes of a Checked result. Where there is a rounding, the function has lDecPlace as its last parameter.
enum class Rounding : std::uint8_t { to_decimal_places, always_four_places, none };

struct Parameter {
    Parameter(const char16_t* its_name, std::optional<Variant> its_default = std::nullopt)
        : name(its_name), default_value(std::move(its_default)) {}

    bool is_optional() const noexcept { return default_value.has_value(); }

    std::u16string_view name;
    // None: the argument is required. Missing: without it a Variant stays Missing and any other kind is 0 or empty.
    std::optional<Variant> default_value;
    ValueKind kind = ValueKind::number;  // this and the next as the formula takes it
    bool is_by_reference = false;
};

struct Example {
    std::vector<Variant> arguments;
    Variant result;
};

// The computation of a function as a plain lambda: its parameters are Checked (a double whose operations are checked),
// double, std::int32_t, Variant, std::u16string or bool, and a reference to non-const goes back to the caller.
class Formula {
  public:
    struct Slot {
        ValueKind kind;
        bool is_by_reference;
    };

    template <class Lambda>
    requires(std::is_empty_v<Lambda>&& std::is_default_constructible_v<Lambda>) Formula(Lambda lambda);

    std::span<const Slot> slots() const noexcept { return slots_; }
    ValueKind result_kind() const noexcept { return result_kind_; }
    bool has_checked_result() const noexcept { return has_checked_result_; }
    Variant evaluate(const Function& function, std::span<Variant> arguments) const {
        return evaluate_(function, arguments);
    }

  private:
    std::span<const Slot> slots_;
    ValueKind result_kind_;
    bool has_checked_result_;
    Variant (*evaluate_)(const Function& function, std::span<Variant> arguments);
};

// A worksheet function as its family declares it.
struct FunctionDeclaration {
    std::u16string_view name = {};    // as it is registered with the host
    std::u16string_view member = {};  // the member's spelling where it differs in case
    std::int32_t help_id = 0;
    std::u16string_view description = {};
    std::vector<Parameter> parameters = {};  // without lDecPlace where there is a rounding
    Formula formula;
    Rounding rounding = Rounding::to_decimal_places;
    std::vector<Example> examples = {};
};

// A worksheet function with all that there is to know about it.
struct Function : FunctionDeclaration {
    Function(FunctionDeclaration declaration, Category its_category);

    Category category;

    ValueKind result_kind() const noexcept { return formula.result_kind(); }
    std::vector<std::u16string_view> parameter_names() const;
    // What the result is before the formula has stored one: 0, the empty text, false or Empty.
    Variant starting_value() const;

    // Computes the function for positional arguments, where trailing ones may be absent and others Missing. Arguments
    // are converted first, which raises as a conversion does, 449 for a required one that is left out and 450 for too
    // many. From then on nothing is raised: a formula that faults leaves 0, the empty text, false or Empty.
    Variant invoke(std::span<Variant> arguments) const;
    Variant invoke(std::vector<Variant> arguments) const { return invoke(std::span(arguments)); }

    // The argument in that place or what stands for it.
    template <class T>
    T argument(std::span<const Variant> arguments, std::size_t place) const;

    // The places to round to, none where the result stays as it is.
    std::optional<std::int32_t> decimal_places(std::span<const Variant> arguments) const;
};

// The average of a value at the beginning and one at the end of a period.
Checked average(Checked beginning, Checked end);

template <class T>
T Function::argument(std::span<const Variant> arguments, std::size_t place) const {
    using Converted = std::conditional_t<std::is_same_v<T, Checked>, double, T>;
    if (place < arguments.size() && !arguments[place].is_missing()) return convert<Converted>(arguments[place]);
    const std::optional<Variant>& default_value = parameters[place].default_value;
    if (!default_value) throw Error(ErrorNumber::argument_not_optional);
    if constexpr (!std::is_same_v<T, Variant>) {
        if (default_value->is_missing()) return {};
    }
    return convert<Converted>(*default_value);
}

namespace detail {

template <class T>
constexpr ValueKind kind_of() {
    if constexpr (std::is_same_v<T, Checked> || std::is_same_v<T, double>) {
        return ValueKind::number;
    } else if constexpr (std::is_same_v<T, std::int32_t>) {
        return ValueKind::whole_number;
    } else if constexpr (std::is_same_v<T, bool>) {
        return ValueKind::boolean;
    } else if constexpr (std::is_same_v<T, std::u16string>) {
        return ValueKind::text;
    } else {
        static_assert(std::is_same_v<T, Variant>, "a worksheet function has no such type");
        return ValueKind::variant;
    }
}

template <class T>
Variant to_variant(const T& value) {
    if constexpr (std::is_same_v<T, Checked>) {
        return value.value();
    } else {
        return value;
    }
}

template <class T>
constexpr bool is_output = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

template <class Lambda, class Signature>
struct Evaluation;

template <class Lambda, class R, class... A>
struct Evaluation<Lambda, R (Lambda::*)(A...) const> {
    static constexpr std::array<Formula::Slot, sizeof...(A)> slots{
        Formula::Slot{kind_of<std::remove_cvref_t<A>>(), is_output<A>}...};
    static constexpr ValueKind result_kind = kind_of<R>();
    static constexpr bool has_checked_result = std::is_same_v<R, Checked>;

    static Variant run(const Function& function, std::span<Variant> arguments) {
        return run(function, arguments, std::index_sequence_for<A...>{});
    }

  private:
    using Values = std::tuple<std::remove_cvref_t<A>...>;

    template <std::size_t... place>
    static Variant run(const Function& function, std::span<Variant> arguments, std::index_sequence<place...>) {
        Values values{function.argument<std::tuple_element_t<place, Values>>(arguments, place)...};
        const std::optional<std::int32_t> places = function.decimal_places(arguments);
        const auto formula = [&]() -> R { return Lambda{}(static_cast<A>(std::get<place>(values))...); };
        Variant result = compute(formula, places);
        (write_back<A>(arguments, place, std::get<place>(values)), ...);
        return result;
    }

    template <class Computation>
    static Variant compute(const Computation& formula, [[maybe_unused]] std::optional<std::int32_t> places) {
        if constexpr (has_checked_result) {
            double result = 0;
            attempt([&] {
                const double unrounded = formula().value();
                const double rounded = places ? round_half_even(unrounded, *places) : unrounded;
                if (std::isfinite(rounded)) result = rounded;  // an argument may be what no cell can show
            });
            return result + 0.0;  // a cell shows no negative zero
        } else {
            R result{};
            attempt([&] { result = formula(); });
            return result;
        }
    }

    template <class Argument, class Value>
    static void write_back(std::span<Variant> arguments, std::size_t place, const Value& value) {
        if constexpr (is_output<Argument>) {
            if (place < arguments.size() && !arguments[place].is_missing()) arguments[place] = to_variant(value);
        }
    }
};

}  // namespace detail

template <class Lambda>
requires(std::is_empty_v<Lambda>&& std::is_default_constructible_v<Lambda>) Formula::Formula(Lambda)
    : evaluate_(&detail::Evaluation<Lambda, decltype(&Lambda::operator())>::run) {
    using Evaluation = detail::Evaluation<Lambda, decltype(&Lambda::operator())>;
    slots_ = Evaluation::slots;
    result_kind_ = Evaluation::result_kind;
    has_checked_result_ = Evaluation::has_checked_result;
}

}  // namespace qor
