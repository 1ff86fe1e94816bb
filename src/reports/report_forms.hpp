#pragma once

#include "reports/cell_columns.hpp"
#include "reports/report_form.hpp"
#include "reports/reports.hpp"
#include "reports/workbook_summary.hpp"
#include "reports/worksheet_summary.hpp"

namespace qor {

template <const ReportKind& kind>
class ReportFormOf final : public ReportForm {
  public:
    ReportFormOf() : ReportForm(kind) {}
};

template <auto columns>
ReportFields fields_of() {
    return ReportFields(columns());
}

inline constexpr ReportKind cell_information{u"frmCellInfo", fields_of<cell_information_columns>, CellInfo};
inline constexpr ReportKind date_review{u"frmDtRev", fields_of<date_review_columns>, DtRev};
inline constexpr ReportKind workbook_summary{u"frmWBSum", fields_of<workbook_summary_columns>, WBSum};
inline constexpr ReportKind worksheet_summary{u"frmWKSum", fields_of<worksheet_summary_columns>, WkSum};

using frmCellInfo = ReportFormOf<cell_information>;
using frmDtRev = ReportFormOf<date_review>;
using frmWBSum = ReportFormOf<workbook_summary>;
using frmWKSum = ReportFormOf<worksheet_summary>;

}  // namespace qor
