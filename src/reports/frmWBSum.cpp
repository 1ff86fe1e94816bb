#include "reports/frmWBSum.hpp"

#include "reports/workbook_summary.hpp"

namespace qor {

ReportFields frmWBSum::all_fields() const {
    return ReportFields(workbook_summary_columns());
}

void frmWBSum::write_report(std::span<const std::u16string> headings) {
    ctlTreeView.WBSum(headings);
}

}  // namespace qor
