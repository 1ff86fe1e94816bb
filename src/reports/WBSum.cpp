#include "reports/reports.hpp"

#include "reports/report_sheet.hpp"
#include "reports/workbook_summary.hpp"
#include "runtime/conversion.hpp"

namespace qor {

void WBSum(ctlTree& tree, std::span<const std::u16string> Fields) {
    ReportSheet report(u"Report - Workbook Summary", Fields);
    if (!report.made()) return;
    const auto columns = columns_for(Fields, workbook_summary_columns());
    for (const TreeNode* node : tree.checked_nodes(2)) {
        SummarizedBook book;
        attempt([&] { book.name = to_text(node->tag()); });
        report.add_record(values_of(columns, book));
        tree.Progress(1, static_cast<std::int32_t>(tree.treQOR.count()));
    }
}

}  // namespace qor
