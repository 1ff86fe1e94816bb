#include "hosts/calc/adapter/cells/cell_writer.hpp"

#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>

#include "hosts/calc/adapter/cells/area_writer.hpp"
#include "hosts/calc/adapter/cells/formula_entry.hpp"
#include "hosts/calc/adapter/cells/transition_entry.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {

void write_values(const RangeAreas& areas, const Variant& value) {
    const UndoStep step(u"Input");
    before_writing(areas);
    std::vector<AreaWriter> writers;
    for (const Cells& cells : areas.areas) writers.emplace_back(areas.sheet, cells, value);
    if (writers.size() > 1 || !writers.front().is_one_call()) {
        for (AreaWriter& writer : writers) writer.keep();
    }
    try {
        for (AreaWriter& writer : writers) writer.write();
    } catch (...) {
        for (const AreaWriter& writer : writers) {
            attempt([&] { guarded([&] { writer.put_back(); }); });
        }
        throw;
    }
}

void write_array_formula(const RangeAreas& areas, const std::u16string& formula) {
    const auto replaced = TransitionEntry(areas.sheet).replaced(formula);
    const CellEntry entry = entry_of(replaced.value_or(formula), areas.sheet, 0);
    if (entry.way != CellEntry::Way::formula) return write_values(areas, formula);
    const UndoStep step(u"Input");
    before_writing(areas);
    const ContentsBefore before(areas.sheet, areas.areas.front());
    try {
        const Ref<css::sheet::XArrayFormulaRange> cells(areas.areas.front());
        cells->setArrayFormula(to_uno(std::get<std::u16string>(entry.content)));
        // A refusal is silent.
        if (cells->getArrayFormula().isEmpty() || has_unreadable_formula(areas.areas.front()))
            throw Error(ErrorNumber::host_refused);
    } catch (...) {
        attempt([&] { guarded([&] { before.put_back(); }); });
        throw;
    }
}

void clear_contents(const RangeAreas& areas) {
    namespace flag = css::sheet::CellFlags;
    before_writing(areas);
    Ref<css::sheet::XSheetOperation>(areas.whole())
        ->clearContents(flag::VALUE | flag::DATETIME | flag::STRING | flag::FORMULA);
}

void clear_all(const RangeAreas& areas) {
    namespace flag = css::sheet::CellFlags;
    before_writing(areas);
    before_formatting(areas);
    Ref<css::sheet::XSheetOperation>(areas.whole())
        ->clearContents(flag::VALUE | flag::DATETIME | flag::STRING | flag::FORMULA | flag::ANNOTATION |
                        flag::HARDATTR | flag::STYLES | flag::EDITATTR);
}

}  // namespace qor::calc
