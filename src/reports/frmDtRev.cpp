#include "reports/frmDtRev.hpp"

#include "reports/cell_columns.hpp"

namespace qor {

ReportFields frmDtRev::all_fields() const {
    return ReportFields(date_review_columns());
}

void frmDtRev::write_report(std::span<const std::u16string> headings) {
    ctlTreeView.DtRev(headings);
}

}  // namespace qor
