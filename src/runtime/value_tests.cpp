#include "runtime/value_tests.hpp"

#include <array>

#include "runtime/conversion.hpp"
#include "runtime/date_text.hpp"
#include "runtime/number_text.hpp"

namespace qor {

std::u16string_view type_name(const Variant& value) {
    static constexpr std::array<std::u16string_view, 14> names{u"Empty",  u"Null",   u"Error",  u"Boolean",  u"Integer",
                                                               u"Long",   u"Single", u"Double", u"Currency", u"Date",
                                                               u"String", u"Error",  u"Object", u"Variant()"};
    return names[static_cast<std::size_t>(value.kind())];
}

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
