#include "functions/function.hpp"

#include <array>
#include <stdexcept>

#include "functions/array_average.hpp"
#include "platform/text.hpp"

namespace qor {
namespace {

constexpr std::int32_t usual_decimal_places = 4;

[[noreturn]] void refuse(const FunctionDeclaration& declaration, const char* reason) {
    throw std::logic_error(to_utf8(declaration.name) + ": " + reason);
}

}  // namespace

Function::Function(FunctionDeclaration declaration, Category its_category)
    : FunctionDeclaration(std::move(declaration)), category(its_category) {
    if (parameters.size() != formula.slots().size()) refuse(*this, "the formula takes other parameters");
    for (std::size_t place = 0; place < parameters.size(); ++place) {
        parameters[place].kind = formula.slots()[place].kind;
        parameters[place].is_by_reference = formula.slots()[place].is_by_reference;
    }
    if (!formula.has_checked_result()) rounding = Rounding::none;
    if (rounding != Rounding::none) {
        parameters.emplace_back(u"lDecPlace", usual_decimal_places).kind = ValueKind::whole_number;
    }
    if (member.empty()) member = name;
}

std::vector<std::u16string_view> Function::parameter_names() const {
    std::vector<std::u16string_view> names;
    for (const Parameter& parameter : parameters) names.push_back(parameter.name);
    return names;
}

Variant Function::starting_value() const {
    switch (result_kind()) {
        case ValueKind::number:
            return 0.0;
        case ValueKind::whole_number:
            return 0;
        case ValueKind::boolean:
            return false;
        case ValueKind::text:
            return u"";
        case ValueKind::variant:
            break;
    }
    return Empty{};
}

Variant Function::invoke(std::span<Variant> arguments) const {
    if (arguments.size() > parameters.size()) throw Error(ErrorNumber::wrong_argument_count);
    return formula.evaluate(*this, arguments);
}

std::optional<std::int32_t> Function::decimal_places(std::span<const Variant> arguments) const {
    if (rounding == Rounding::none) return std::nullopt;
    // The caller converts the argument even where the function does not read it.
    const auto places = argument<std::int32_t>(arguments, parameters.size() - 1);
    return rounding == Rounding::always_four_places ? usual_decimal_places : places;
}

Checked average(Checked beginning, Checked end) {
    const std::array<Variant, 2> values{beginning.value(), end.value()};
    return to_double(ArrayAverage(values));
}

}  // namespace qor
