#include "hosts/calc/adapter/ground/cell_query.hpp"

#include <algorithm>
#include <com/sun/star/sheet/FormulaResult.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>

namespace qor::calc {
namespace {

CellPlaces within(const Cells& cells, const Ref<css::sheet::XSheetCellRanges>& found) {
    const auto addresses = found->getRangeAddresses();
    CellPlaces result;
    if (addresses.getLength() == 0) return result;
    const Rectangle area = rectangle_of(cells);
    for (css::table::CellRangeAddress at : addresses) {
        at.StartColumn = std::max(at.StartColumn, area.left);
        at.StartRow = std::max(at.StartRow, area.top);
        at.EndColumn = std::min(at.EndColumn, area.right);
        at.EndRow = std::min(at.EndRow, area.bottom);
        if (at.StartColumn <= at.EndColumn && at.StartRow <= at.EndRow) result.push_back(at);
    }
    return result;
}

Ref<css::sheet::XCellRangesQuery> query(const Cells& cells) {
    return Ref<css::sheet::XCellRangesQuery>(cells);
}

}  // namespace

CellPlaces formula_places(const Cells& cells, sal_Int32 results) {
    return within(cells, query(cells)->queryFormulaCells(results));
}

CellPlaces formula_places(const Cells& cells) {
    namespace result = css::sheet::FormulaResult;
    return formula_places(cells, result::VALUE | result::STRING | result::ERROR);
}

CellPlaces content_places(const Cells& cells, sal_Int16 contents) {
    return within(cells, query(cells)->queryContentCells(contents));
}

CellPlaces empty_places(const Cells& cells) {
    return within(cells, query(cells)->queryEmptyCells());
}

CellPlaces visible_places(const Cells& cells) {
    return within(cells, query(cells)->queryVisibleCells());
}

}  // namespace qor::calc
