#include "hosts/calc/adapter/ground/array_places.hpp"

#include <algorithm>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>

#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {
namespace {

Rectangle array_around(const Sheet& sheet, const Cells& cell) {
    const Ref<css::sheet::XSheetCellRange> start(cell);
    const Ref cursor{sheet.sheet->createCursorByRange(start.reference())};
    cursor->collapseToCurrentArray();
    return rectangle_of(Cells(cursor));
}

}  // namespace

std::vector<Rectangle> array_places(const Sheet& sheet, const Cells& cells) {
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
                known.push_back(array_around(sheet, cells_at(sheet, cell)));
            }
        }
    }
    return known;
}

}  // namespace qor::calc
