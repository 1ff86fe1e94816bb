#include "hosts/calc/adapter/write_guard.hpp"

#include <algorithm>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include "hosts/calc/adapter/cell_query.hpp"
#include "hosts/calc/adapter/undo_step.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

constexpr std::u16string_view protected_cell = u"The cell or chart you're trying to change is on a protected sheet.";
constexpr std::u16string_view part_of_array = u"You can't change part of an array.";

[[noreturn]] void refuse(std::u16string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, std::u16string(reason));
}

bool is_protected(const Sheet& sheet) {
    return Ref<css::util::XProtectable>(sheet.sheet)->isProtected();
}

bool has_locked_cell(const Cells& cells) {
    const auto state = Ref<css::beans::XPropertyState>(cells)->getPropertyState("CellProtection");
    return state == css::beans::PropertyState_AMBIGUOUS_VALUE ||
           get_property<css::util::CellProtection>(cells, "CellProtection").IsLocked;
}

// Whether an array formula lies partly in the cells and partly outside.
bool cuts_array(const Sheet& sheet, const Cells& cells) {
    const Rectangle area = rectangle_of(cells);
    std::vector<Rectangle> known;
    for (const css::table::CellRangeAddress& at : formula_places(cells)) {
        const Cells run = cells_at(sheet, {at.StartColumn, at.StartRow, at.EndColumn, at.EndRow});
        const auto texts = Ref<css::sheet::XCellRangeFormula>(run)->getFormulaArray();
        for (sal_Int32 row = 0; row < texts.getLength(); ++row) {
            for (sal_Int32 column = 0; column < texts[row].getLength(); ++column) {
                if (!view_of(texts[row][column]).starts_with(u'{')) continue;
                const Rectangle cell{at.StartColumn + column, at.StartRow + row, at.StartColumn + column,
                                     at.StartRow + row};
                const auto holds_cell = [&](const Rectangle& array) { return array.contains(cell); };
                if (std::ranges::any_of(known, holds_cell)) continue;
                const css::uno::Reference<css::sheet::XSheetCellRange> start(cells_at(sheet, cell).reference(),
                                                                             css::uno::UNO_QUERY);
                const Ref cursor{sheet.sheet->createCursorByRange(start)};
                cursor->collapseToCurrentArray();
                known.push_back(rectangle_of(Cells(cursor)));
                if (!area.contains(known.back())) return true;
            }
        }
    }
    return false;
}

}  // namespace

void before_change(const Book& book) {
    if (Ref<css::frame::XStorable>(book.document)->isReadonly()) refuse(u"The workbook is read-only.");
    UndoStep::note_change(book.document);
}

void before_writing(const RangeAreas& areas) {
    if (is_protected(areas.sheet) && std::ranges::any_of(areas.areas, has_locked_cell)) refuse(protected_cell);
    for (const Cells& cells : areas.areas) {
        if (cuts_array(areas.sheet, cells)) refuse(part_of_array);
    }
    before_change(areas.sheet.book);
}

void before_formatting(const RangeAreas& areas) {
    if (is_protected(areas.sheet)) refuse(protected_cell);
    before_change(areas.sheet.book);
}

}  // namespace qor::calc
