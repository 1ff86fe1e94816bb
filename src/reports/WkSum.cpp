#include <algorithm>
#include <vector>

#include "automation/member_names.hpp"
#include "reports/report_sheet.hpp"
#include "reports/worksheet_summary.hpp"
#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"

namespace qor {
namespace {

// The column of each heading; null for a heading that the report does not have, which stays blank.
std::vector<const WorksheetSummaryColumn*> columns_for(std::span<const std::u16string> headings) {
    const auto all = worksheet_summary_columns();
    std::vector<const WorksheetSummaryColumn*> columns;
    for (const std::u16string& heading : headings) {
        const auto column = std::ranges::find(all, heading, &WorksheetSummaryColumn::heading);
        columns.push_back(column == all.end() ? nullptr : &*column);
    }
    return columns;
}

}  // namespace

void ctlTree::WkSum(std::span<const std::u16string> Fields) {
    ReportSheet report(u"Report - Worksheet Summary", Fields);
    if (!report.made()) return;
    const auto columns = columns_for(Fields);
    for (std::size_t index = 1; index <= treQOR.count(); ++index) {
        const TreeNode& node = treQOR.node(index);
        if (node.level() != 3 || node.image() != checked) continue;
        std::u16string workbook_name;
        attempt([&] { workbook_name = to_text(node.parent()->tag()); });
        SummarizedSheet sheet(std::move(workbook_name), node.text());
        std::vector<std::optional<Variant>> record(columns.size());
        for (std::size_t place = 0; place < columns.size(); ++place) {
            if (columns[place]) attempt([&] { record[place] = columns[place]->read(sheet); });
        }
        report.add_record(record);
        attempt([&] { Progress(1, to_long(sheet.used_range().get(names::Count))); });
    }
}

}  // namespace qor
