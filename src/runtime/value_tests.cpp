#include "runtime/value_tests.hpp"

#include "runtime/conversion.hpp"
#include "runtime/date_text.hpp"
#include "runtime/number_text.hpp"

namespace qor {

bool is_date(const Variant& value) {
    if (const auto* text = value.get_if<std::u16string>()) return parse_date(*text).has_value();
    return value.is(Variant::Kind::date);
}

bool is_numeric(const Variant& value) {
    if (const auto* text = value.get_if<std::u16string>()) return shows_number(*text);
    if (value.is(Variant::Kind::date)) return false;
    return attempt([&] { to_double(value); }) == 0;
}

}  // namespace qor
