#include "hosts/calc/adapter/objects/application/convert_formula.hpp"

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/formula/reference_style.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

[[noreturn]] void refuse() {
    throw Error(ErrorNumber::host_refused, {}, u"Method 'ConvertFormula' of object '_Application' failed");
}

ReferenceStyle style_of(std::int32_t number) {
    const auto style = static_cast<ReferenceStyle>(number);
    if (style != ReferenceStyle::letters && style != ReferenceStyle::row_column) refuse();
    return style;
}

ReferenceKind kind_of(std::int32_t number) {
    const auto kind = static_cast<ReferenceKind>(number);
    if (kind < ReferenceKind::absolute || kind > ReferenceKind::relative) refuse();
    return kind;
}

CellPlace place_of(const Object& range) {
    return {to_long(range.get(names::Column)) - 1, to_long(range.get(names::Row)) - 1};
}

}  // namespace

Variant convert_formula(const HostPointer& host, const std::u16string& formula, std::int32_t from_style,
                        std::optional<std::int32_t> to_style, std::optional<std::int32_t> kind,
                        const Variant& relative_to) {
    ReferenceConversion conversion;
    conversion.from = style_of(from_style);
    conversion.to = to_style ? style_of(*to_style) : conversion.from;
    if (kind) conversion.kind = kind_of(*kind);
    const bool by_letters = conversion.from == ReferenceStyle::letters && conversion.to == ReferenceStyle::letters;
    if (!by_letters) {
        const Object base = relative_to.is_missing() ? make_application(host).get(names::ActiveCell) : relative_to;
        conversion.base = place_of(base);
    }
    const auto result = convert_references(formula, conversion);
    return result ? Variant(*result) : Variant(ErrorValue{numbers::cell_error::value});
}

}  // namespace qor::calc
