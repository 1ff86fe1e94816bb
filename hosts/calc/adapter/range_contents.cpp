#include <com/sun/star/text/XTextRange.hpp>

#include "hosts/calc/adapter/cell_reader.hpp"
#include "hosts/calc/adapter/range_object.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

// Of a range of several areas Excel reads the first one.
Variant RangeObject::value() {
    return read_values(areas_.sheet, areas_.areas.front(), Typing::typed);
}

Variant RangeObject::value2() {
    return read_values(areas_.sheet, areas_.areas.front(), Typing::plain);
}

Variant RangeObject::formula() {
    return read_formulas(areas_.sheet, areas_.areas.front());
}

// The formula that all cells share, else Null.
Variant RangeObject::formula_array() {
    Variant formulas = formula();
    const Array* table = formulas.array();
    if (!table) return formulas;
    const auto text = [&](const Variant& value) -> const std::u16string& { return *value.get_if<std::u16string>(); };
    for (const Variant& other : *table) {
        if (text(other) != text(table->at(0))) return Null{};
    }
    return table->at(0);
}

Variant RangeObject::has_formula() {
    const FormulaCounts counts = count_formulas(areas_.sheet, areas_.areas.front());
    if (counts.formulas == 0) return false;
    return counts.formulas == counts.cells ? Variant(true) : Variant(Null{});
}

Variant RangeObject::has_array() {
    const FormulaCounts counts = count_formulas(areas_.sheet, areas_.areas.front());
    if (counts.in_arrays == 0) return false;
    return counts.in_arrays == counts.cells ? Variant(true) : Variant(Null{});
}

// The text that the cells show, Null when they show different ones.
Variant RangeObject::text() {
    const Cells& cells = areas_.areas.front();
    const Rectangle area = areas_.rectangle();
    std::optional<rtl::OUString> shown;
    for (std::int32_t row = 0; row < area.height(); ++row) {
        for (std::int32_t column = 0; column < area.width(); ++column) {
            const Ref cell{cells->getCellByPosition(column, row)};
            const rtl::OUString one = Ref<css::text::XTextRange>(cell)->getString();
            if (shown && *shown != one) return Null{};
            shown = one;
        }
    }
    return from_uno(*shown);
}

}  // namespace qor::calc
