#include "hosts/calc/functions/repair.hpp"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XModifiable.hpp>

#include "functions/registry.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {
namespace {

namespace container = com::sun::star::container;
namespace document = com::sun::star::document;
namespace sheet = com::sun::star::sheet;
namespace table = com::sun::star::table;
namespace uno = com::sun::star::uno;
namespace util = com::sun::star::util;

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

void enter_again(const uno::Reference<sheet::XSpreadsheet>& page, sal_Int32 column, sal_Int32 row) {
    const uno::Reference<table::XCell> cell = page->getCellByPosition(column, row);
    const rtl::OUString formula = cell->getFormula();
    if (!formula.startsWith("{")) {
        cell->setFormula(formula);
        return;
    }
    const auto cursor = page->createCursorByRange({uno::Reference<sheet::XSheetCellRange>(cell, uno::UNO_QUERY_THROW)});
    cursor->collapseToCurrentArray();
    const uno::Reference<sheet::XArrayFormulaRange> array(cursor, uno::UNO_QUERY_THROW);
    array->setArrayFormula(rtl::OUString());
    array->setArrayFormula(formula.copy(1, formula.getLength() - 2));  // without its braces
}

void repair_sheet(const uno::Reference<sheet::XSpreadsheet>& page) {
    const uno::Reference<sheet::XCellRangesQuery> cells(page, uno::UNO_QUERY_THROW);
    for (const table::CellRangeAddress& part :
         cells->queryContentCells(sheet::CellFlags::FORMULA)->getRangeAddresses()) {
        const uno::Reference<sheet::XCellRangeFormula> formulas(
            page->getCellRangeByPosition(part.StartColumn, part.StartRow, part.EndColumn, part.EndRow),
            uno::UNO_QUERY_THROW);
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

void repair_function_names(const uno::Reference<uno::XInterface>& document_object) {
    const uno::Reference<sheet::XSpreadsheetDocument> spreadsheet(document_object, uno::UNO_QUERY);
    if (!spreadsheet.is()) return;
    const uno::Reference<util::XModifiable> modifiable(spreadsheet, uno::UNO_QUERY_THROW);
    const bool modified = modifiable->isModified();
    const auto undo =
        uno::Reference<document::XUndoManagerSupplier>(spreadsheet, uno::UNO_QUERY_THROW)->getUndoManager();
    undo->lock();
    try {
        const uno::Reference<container::XIndexAccess> sheets(spreadsheet->getSheets(), uno::UNO_QUERY_THROW);
        for (sal_Int32 place = 0; place < sheets->getCount(); ++place)
            repair_sheet(uno::Reference<sheet::XSpreadsheet>(sheets->getByIndex(place), uno::UNO_QUERY_THROW));
    } catch (...) {
        undo->unlock();
        throw;
    }
    undo->unlock();
    modifiable->setModified(modified);
}

}  // namespace qor::calc
