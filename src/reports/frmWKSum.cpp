#include "reports/frmWKSum.hpp"

#include "reports/worksheet_summary.hpp"

namespace qor {

ReportFields frmWKSum::all_fields() const {
    return ReportFields(worksheet_summary_columns());
}

void frmWKSum::write_report(std::span<const std::u16string> headings) {
    ctlTreeView.WkSum(headings);
}

}  // namespace qor
