#include "hosts/calc/functions/repair.hpp"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>

#include "functions/registry.hpp"
#include "hosts/calc/uno/kept_modified_state.hpp"
#include "hosts/calc/uno/text.hpp"
#include "hosts/calc/uno/undo.hpp"

namespace qor::calc {
namespace {

namespace sheet = css::sheet;

bool is_name_unit(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || (unit >= u'0' && unit <= u'9') ||
           unit == u'_' || unit == u'.';
}

// Whether the formula calls one of our functions by its bare name. A text constant that looks like such a call only
// costs a formula that is entered again for nothing.
bool calls_function(std::u16string_view formula) {
    for (std::size_t open = formula.find(u'('); open != formula.npos; open = formula.find(u'(', open + 1)) {
        std::size_t start = open;
        while (start > 0 && is_name_unit(formula[start - 1])) --start;
        if (find_function(formula.substr(start, open - start))) return true;
    }
    return false;
}

void enter_again(const Ref<sheet::XSpreadsheet>& page, sal_Int32 column, sal_Int32 row) {
    const Ref cell{page->getCellByPosition(column, row)};
    const rtl::OUString formula = cell->getFormula();
    if (!formula.startsWith("{")) {
        cell->setFormula(formula);
        return;
    }
    const Ref cursor{page->createCursorByRange(Ref<sheet::XSheetCellRange>(cell).reference())};
    cursor->collapseToCurrentArray();
    const Ref<sheet::XArrayFormulaRange> array(cursor);
    array->setArrayFormula(rtl::OUString());
    array->setArrayFormula(formula.copy(1, formula.getLength() - 2));  // without its braces
}

void repair_sheet(const Ref<sheet::XSpreadsheet>& page) {
    const Ref with_formulas{Ref<sheet::XCellRangesQuery>(page)->queryContentCells(sheet::CellFlags::FORMULA)};
    for (const css::table::CellRangeAddress& part : with_formulas->getRangeAddresses()) {
        const Ref<sheet::XCellRangeFormula> formulas(
            Ref{page->getCellRangeByPosition(part.StartColumn, part.StartRow, part.EndColumn, part.EndRow)});
        const auto texts = formulas->getFormulaArray();
        for (sal_Int32 row = 0; row < texts.getLength(); ++row) {
            for (sal_Int32 column = 0; column < texts[row].getLength(); ++column) {
                if (calls_function(view_of(texts[row][column])))
                    enter_again(page, part.StartColumn + column, part.StartRow + row);
            }
        }
    }
}

}  // namespace

void repair_function_names(const Document& document) {
    const KeptModifiedState kept(document);
    const NoUndo unrecorded(document);
    const Ref<css::container::XIndexAccess> sheets(Ref{document->getSheets()});
    for (sal_Int32 place = 0; place < sheets->getCount(); ++place) {
        repair_sheet(Ref<sheet::XSpreadsheet>(sheets->getByIndex(place)));
    }
}

}  // namespace qor::calc
