#include "hosts/calc/functions/wizard_text.hpp"

#include <algorithm>
#include <array>

#include "functions/function_words.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

// Calc takes all arguments for optional, so the text says what becomes of one that is left out.
std::u16string need_text(const Parameter& parameter) {
    if (!parameter.is_optional()) return u"required";
    if (parameter.default_value->is_missing()) return u"may be left out";
    return to_upper(to_text(*parameter.default_value)) + u" if it is left out";
}

}  // namespace

std::u16string_view calc_category(Category category) {
    return category == Category::date_and_time ? u"Date&Time" : category_name(category);
}

std::u16string display_name(const Function& function) {
    static constexpr std::array<std::u16string_view, 1> taken_by_calc{u"ISLEAPYEAR"};
    const bool taken = std::ranges::find(taken_by_calc, function.name) != taken_by_calc.end();
    return (taken ? u"_XLL." : u"") + std::u16string(function.name);
}

std::u16string parameter_description(const Parameter& parameter) {
    return std::u16string(kind_phrase(parameter.kind)) + u"; " + need_text(parameter) + u".";
}

}  // namespace qor::calc
