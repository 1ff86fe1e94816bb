#include "hosts/calc/functions/wizard_text.hpp"

#include <algorithm>
#include <array>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

std::u16string_view kind_text(ValueKind kind) {
    switch (kind) {
        case ValueKind::number:
            return u"A number";
        case ValueKind::whole_number:
            return u"A whole number";
        case ValueKind::variant:
            return u"A value of any kind";
        case ValueKind::text:
            return u"A text";
        case ValueKind::boolean:
            return u"TRUE or FALSE";
    }
    return u"A value";
}

// Calc takes all arguments for optional, so the text says what becomes of one that is left out.
std::u16string need_text(const Parameter& parameter) {
    if (!parameter.is_optional()) return u"required";
    if (parameter.default_value->is_missing()) return u"may be left out";
    return to_upper(to_text(*parameter.default_value)) + u" if it is left out";
}

}  // namespace

std::u16string_view calc_category(Category category) {
    switch (category) {
        case Category::financial:
            return u"Financial";
        case Category::date_and_time:
            return u"Date&Time";
        case Category::text:
            return u"Text";
        case Category::logical:
            return u"Logical";
        case Category::information:
            return u"Information";
    }
    return u"Add-In";
}

std::u16string display_name(const Function& function) {
    static constexpr std::array<std::u16string_view, 1> taken_by_calc{u"ISLEAPYEAR"};
    const bool taken = std::ranges::find(taken_by_calc, function.name) != taken_by_calc.end();
    return (taken ? u"_XLL." : u"") + std::u16string(function.name);
}

std::u16string parameter_description(const Parameter& parameter) {
    return std::u16string(kind_text(parameter.kind)) + u"; " + need_text(parameter) + u".";
}

}  // namespace qor::calc
