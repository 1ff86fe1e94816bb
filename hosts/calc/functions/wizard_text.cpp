#include "hosts/calc/functions/wizard_text.hpp"

#include <algorithm>
#include <array>

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
    std::u16string text(kind_text(parameter.kind));
    if (parameter.is_optional() && !parameter.default_value->is_missing())
        text += u"; " + to_text(*parameter.default_value) + u" if it is left out";
    return text + u".";
}

}  // namespace qor::calc
