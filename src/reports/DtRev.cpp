#include "reports/reports.hpp"

#include "reports/cell_report.hpp"
#include "reports/checked_nodes.hpp"
#include "runtime/value_tests.hpp"

namespace qor {

void DtRev(ctlTree& tree, std::span<const std::u16string> Fields) {
    CellReport report({u"Report - Date Review", date_review_columns(), is_date}, Fields, tree.Progress);
    if (!report.made()) return;
    for_each_checked_worksheet(tree, [&](const std::u16string& workbook_name, const std::u16string& sheet_name) {
        report.add_worksheet(workbook_name, sheet_name);
    });
}

}  // namespace qor
