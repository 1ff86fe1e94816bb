#include "runtime/compare.hpp"

#include "runtime/conversion.hpp"

namespace qor {
namespace {

enum class Side : std::uint8_t { empty, null, number, text };

Side side_of(const Variant& value) {
    using Kind = Variant::Kind;
    switch (value.kind()) {
        case Kind::empty:
            return Side::empty;
        case Kind::null:
            return Side::null;
        case Kind::text:
            return Side::text;
        case Kind::missing:
        case Kind::error:
        case Kind::array:
            throw Error(ErrorNumber::type_mismatch);
        case Kind::object:
            throw Error(value.object() ? ErrorNumber::no_such_member : ErrorNumber::object_not_set);
        default:
            return Side::number;
    }
}

std::u16string_view text_of(const Variant& value) {
    const auto* text = value.get_if<std::u16string>();
    return text ? *text : std::u16string_view();
}

}  // namespace

std::partial_ordering compare(const Variant& left, const Variant& right) {
    const Side left_side = side_of(left);
    const Side right_side = side_of(right);
    if (left_side == Side::null || right_side == Side::null) return std::partial_ordering::unordered;
    if (left_side == Side::text || right_side == Side::text) {
        if (left_side == Side::number) return std::partial_ordering::less;
        if (right_side == Side::number) return std::partial_ordering::greater;
        return text_of(left) <=> text_of(right);
    }
    const auto* left_money = left.get_if<Currency>();
    const auto* right_money = right.get_if<Currency>();
    if (left_money && right_money) return left_money->ten_thousandths <=> right_money->ten_thousandths;
    return to_double(left) <=> to_double(right);
}

bool equals(const Variant& left, const Variant& right) {
    return std::is_eq(compare(left, right));
}

}  // namespace qor
