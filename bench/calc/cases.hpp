#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::bench {

using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;

// Columns of 100,000 formulas, computed anew: functions of ours, of Calc's own add-ins, and built-in ones.
void register_recalculation(const Context& context);

// The Worksheet Summary of a sheet of 200,000 used cells, by the tool and by the walk from cell to cell.
void register_worksheet_summary(const Context& context);

// The worksheets of a workbook brought into order, by the tool and by the moves that it takes.
void register_sort_worksheets(const Context& context);

// The reports of cells, by the tool, by the walk from cell to cell and as a plain array.
void register_cell_reports(const Context& context);

// The summaries of a workbook of many sheets.
void register_summaries(const Context& context);

// Cells read, written and coloured through the adapter, beside the office's own interfaces.
void register_cells(const Context& context);

}  // namespace qor::bench
