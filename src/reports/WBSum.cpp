#include "reports/report_sheet.hpp"
#include "reports/workbook_summary.hpp"
#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"

namespace qor {

void ctlTree::WBSum(std::span<const std::u16string> Fields) {
    ReportSheet report(u"Report - Workbook Summary", Fields);
    if (!report.made()) return;
    const auto columns = columns_for(Fields, workbook_summary_columns());
    for (std::size_t index = 1; index <= treQOR.count(); ++index) {
        const TreeNode& node = treQOR.node(index);
        if (node.level() != 2 || node.image() != checked) continue;
        SummarizedBook book;
        attempt([&] { book.name = to_text(node.tag()); });
        report.add_record(values_of(columns, book));
        Progress(1, static_cast<std::int32_t>(treQOR.count()));
    }
}

}  // namespace qor
