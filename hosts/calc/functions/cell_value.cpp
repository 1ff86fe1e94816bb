#include "hosts/calc/functions/cell_value.hpp"

#include <uno/data.h>

#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Sequence.hxx>
#include <cppu/unotype.hxx>

#include "hosts/calc/uno/text.hpp"

namespace qor::calc {
namespace {

namespace uno = com::sun::star::uno;
using Rectangle = uno::Sequence<uno::Sequence<uno::Any>>;

void construct(uno_Any& result, double number) noexcept {
    uno_type_any_construct(&result, &number, cppu::UnoType<double>::get().getTypeLibType(), nullptr);
}

void construct(uno_Any& result, std::u16string_view text) noexcept {
    rtl::OUString value = to_uno(text);
    uno_type_any_construct(&result, &value, cppu::UnoType<rtl::OUString>::get().getTypeLibType(), nullptr);
}

Variant from_rectangle(const uno_Any& argument, ValueKind wanted) {
    // A binary value and the language's own are laid out alike as long as no interface is in it.
    Rectangle cells;
    if (!(static_cast<const uno::Any&>(argument) >>= cells) || cells.getLength() != 1 || cells[0].getLength() != 1) {
        throw Error(ErrorNumber::type_mismatch);
    }
    Variant value = argument_from_cell(cells[0][0], wanted);
    const auto* text = value.get_if<std::u16string>();
    return text && text->empty() ? Variant() : value;
}

}  // namespace

Variant argument_from_cell(const uno_Any& argument, ValueKind wanted) {
    switch (argument.pType->eTypeClass) {
        case typelib_TypeClass_DOUBLE: {
            const double number = *static_cast<const double*>(argument.pData);
            return number == 0 && wanted == ValueKind::text ? Variant() : number;
        }
        case typelib_TypeClass_STRING:
            return view_of(*static_cast<const rtl::OUString*>(argument.pData));
        case typelib_TypeClass_VOID:
            return Missing{};
        default:
            return from_rectangle(argument, wanted);
    }
}

void result_to_cell(const Variant& value, uno_Any& result) noexcept {
    if (const auto* number = value.get_if<double>()) return construct(result, *number);
    if (const auto* text = value.get_if<std::u16string>()) return construct(result, *text);
    if (const auto* truth = value.get_if<bool>()) return construct(result, *truth ? 1.0 : 0.0);
    if (const auto* date = value.get_if<Date>()) return construct(result, date->serial);
    if (const auto* whole = value.get_if<std::int32_t>()) return construct(result, *whole);
    if (const auto* whole = value.get_if<std::int16_t>()) return construct(result, *whole);
    if (const auto* money = value.get_if<Currency>())
        return construct(result, static_cast<double>(money->ten_thousandths) / 10'000);
    if (const auto* number = value.get_if<float>()) return construct(result, static_cast<double>(*number));
    construct(result, 0.0);
}

}  // namespace qor::calc
