#include <com/sun/star/sheet/XSheetAnnotationAnchor.hpp>
#include <com/sun/star/sheet/XSheetAnnotations.hpp>
#include <com/sun/star/sheet/XSheetAnnotationsSupplier.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include "hosts/calc/adapter/cells/cell_reader.hpp"
#include "hosts/calc/adapter/cells/cell_writer.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"
#include "hosts/calc/adapter/sheets/spelling.hpp"

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

void RangeObject::set_value(const Variant& value) {
    write_values(areas_, value);
}

void RangeObject::set_formula_array(const std::u16string& formula) {
    write_array_formula(areas_, formula);
}

void RangeObject::clear() {
    clear_all(areas_);
}

void RangeObject::clear_contents() {
    qor::calc::clear_contents(areas_);
}

// Nothing when the first cell has none: the office hands out an empty one.
Object RangeObject::comment() {
    const Rectangle area = areas_.rectangle();
    const Ref<css::sheet::XSheetAnnotationAnchor> cell(Ref{areas_.areas.front()->getCellByPosition(0, 0)});
    const Ref annotation{cell->getAnnotation()};
    if (Ref<css::text::XTextRange>(annotation)->getString().isEmpty()) return {};
    return make_comment(areas_.sheet, {0, area.left, area.top});
}

Object RangeObject::add_comment(std::optional<std::u16string> text) {
    const Rectangle area = areas_.rectangle();
    if (comment()) throw Error(ErrorNumber::host_refused);
    before_formatting(areas_);
    const css::table::CellAddress cell{static_cast<sal_Int16>(areas_.sheet.index()), area.left, area.top};
    const Ref<css::sheet::XSheetAnnotationsSupplier> supplier(areas_.sheet.sheet);
    Ref(supplier->getAnnotations())->insertNew(cell, to_uno(text.value_or(u" ")));
    return make_comment(areas_.sheet, cell);
}

Object RangeObject::hyperlinks() {
    return make_hyperlinks(areas_);
}

Object RangeObject::format_conditions(const Variant& index) {
    return item_or_all(make_format_conditions(areas_), index);
}

bool RangeObject::check_spelling() {
    return qor::calc::check_spelling(areas_);
}

}  // namespace qor::calc
