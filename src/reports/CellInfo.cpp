#include "reports/reports.hpp"

#include "reports/cell_report.hpp"
#include "reports/checked_nodes.hpp"

namespace qor {
namespace {

constexpr bool is_any(const Variant&) {
    return true;
}

}  // namespace

void CellInfo(ctlTree& tree, std::span<const std::u16string> Fields) {
    CellReport report({u"Report - Cell Information", cell_information_columns(), is_any}, Fields, tree.Progress);
    if (!report.made()) return;
    for_each_checked_worksheet(tree, [&](const std::u16string& workbook_name, const std::u16string& sheet_name) {
        report.add_worksheet(workbook_name, sheet_name);
    });
}

}  // namespace qor
