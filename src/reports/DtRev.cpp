#include "reports/cell_report.hpp"
#include "reports/checked_nodes.hpp"
#include "runtime/value_tests.hpp"

namespace qor {

void ctlTree::DtRev(std::span<const std::u16string> Fields) {
    CellReport report({u"Report - Date Review", date_review_columns(), is_date}, Fields, Progress);
    if (!report.made()) return;
    for_each_checked_worksheet(*this, [&](const std::u16string& workbook_name, const std::u16string& sheet_name) {
        report.add_worksheet(workbook_name, sheet_name);
    });
}

}  // namespace qor
