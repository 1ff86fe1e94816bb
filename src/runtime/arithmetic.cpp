#include "runtime/arithmetic.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "runtime/calendar.hpp"
#include "runtime/checked.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

// The kind that a value takes part with, in the order in which one kind gives way to another.
enum class Rank : std::uint8_t { integer, long_integer, single, double_float, currency, date };

Rank rank_of(const Variant& value) {
    using Kind = Variant::Kind;
    switch (value.kind()) {
        case Kind::empty:
        case Kind::boolean:
        case Kind::integer:
            return Rank::integer;
        case Kind::long_integer:
            return Rank::long_integer;
        case Kind::single:
            return Rank::single;
        case Kind::currency:
            return Rank::currency;
        case Kind::date:
            return Rank::date;
        case Kind::missing:
            throw Error(ErrorNumber::type_mismatch);
        default:
            return Rank::double_float;
    }
}

template <class Whole>
bool fits(std::int64_t value) {
    return value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max();
}

Variant whole_sum(std::int64_t sum, Rank rank) {
    if (rank == Rank::integer && fits<std::int16_t>(sum)) return static_cast<std::int16_t>(sum);
    if (fits<std::int32_t>(sum)) return static_cast<std::int32_t>(sum);
    return static_cast<double>(sum);
}

Variant single_sum(double sum) {
    const auto narrow = static_cast<float>(sum);
    if (std::isinf(narrow)) return sum;
    return narrow;
}

Variant currency_sum(Currency left, Currency right) {
    Currency sum;
    if (__builtin_add_overflow(left.ten_thousandths, right.ten_thousandths, &sum.ten_thousandths)) {
        throw Error(ErrorNumber::overflow);
    }
    return sum;
}

bool is_null(const Variant& value) {
    return value.is(Variant::Kind::null);
}

}  // namespace

Variant add(const Variant& left, const Variant& right) {
    using Kind = Variant::Kind;
    if (left.is(Kind::double_float) && right.is(Kind::double_float)) {
        return (Checked(*left.get_if<double>()) + Checked(*right.get_if<double>())).value();
    }
    if (is_null(left) || is_null(right)) return Null{};
    if (left.is(Kind::text) && right.is(Kind::text)) return to_text(left) + to_text(right);
    if (left.is_empty() && right.is(Kind::text)) return right;
    if (right.is_empty() && left.is(Kind::text)) return left;

    const Rank left_rank = rank_of(left);
    const Rank right_rank = rank_of(right);
    const Rank rank = std::max(left_rank, right_rank);
    switch (rank) {
        case Rank::integer:
        case Rank::long_integer:
            return whole_sum(std::int64_t{to_long(left)} + to_long(right), rank);
        case Rank::single:
            // A long has more digits than a single shows.
            if (std::min(left_rank, right_rank) == Rank::long_integer) return to_double(left) + to_double(right);
            return single_sum(to_double(left) + to_double(right));
        case Rank::currency:
            return currency_sum(to_currency(left), to_currency(right));
        case Rank::double_float:
        case Rank::date:
            break;
    }
    const double sum = (Checked(to_double(left)) + Checked(to_double(right))).value();
    if (rank == Rank::date && is_in_calendar(Date{sum})) return Date{sum};
    return sum;
}

Variant divide(const Variant& left, const Variant& right) {
    if (is_null(left) || is_null(right)) return Null{};
    return (Checked(to_double(left)) / Checked(to_double(right))).value();
}

}  // namespace qor
