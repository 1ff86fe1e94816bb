#include "reports/reports.hpp"

#include "automation/member_names.hpp"
#include "reports/checked_nodes.hpp"
#include "reports/report_sheet.hpp"
#include "reports/worksheet_summary.hpp"

namespace qor {

void WkSum(ctlTree& tree, std::span<const std::u16string> Fields) {
    ReportSheet report(u"Report - Worksheet Summary", Fields);
    if (!report.made()) return;
    const auto columns = columns_for(Fields, worksheet_summary_columns());
    for_each_checked_worksheet(tree, [&](const std::u16string& workbook_name, const std::u16string& sheet_name) {
        SummarizedSheet sheet(workbook_name, sheet_name);
        report.add_record(values_of(columns, sheet));
        attempt([&] { tree.Progress(1, to_long(sheet.used_range().get(names::Count))); });
    });
}

}  // namespace qor
