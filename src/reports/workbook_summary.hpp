#pragma once

#include <span>
#include <string>

#include "reports/report_fields.hpp"

namespace qor {

// One workbook as its summary needs it.
struct SummarizedBook {
    std::u16string name;

    // Raises what the host raises.
    Object workbook() const;
};

using WorkbookSummaryColumn = ReportColumn<SummarizedBook>;

// The report's fields in their starting order.
std::span<const WorkbookSummaryColumn> workbook_summary_columns();

}  // namespace qor
