#pragma once

#include <functional>

#include "reports/cell_columns.hpp"
#include "reports/report_sheet.hpp"

namespace qor {

// What makes a report of cells its own.
struct CellReportKind {
    std::u16string_view title;
    std::span<const CellColumn> columns;
    bool (*is_reported)(const Variant& value);  // of a cell that is not empty
};

// A report with a record for each reported cell of the worksheets that are added to it. Nothing raises.
class CellReport {
  public:
    // Cells of the used range that are done, and all of them.
    using Progress = std::function<void(std::int32_t, std::int32_t)>;

    CellReport(CellReportKind kind, std::span<const std::u16string> headings, Progress progress);

    bool made() const noexcept { return sheet_.made(); }
    void add_worksheet(const std::u16string& workbook_name, const std::u16string& sheet_name);

  private:
    void add_rows(ReportedSheet& source);
    void add_record(ReportedCell cell, std::span<RecordColumn> records) const;

    CellReportKind kind_;
    std::vector<const CellColumn*> columns_;
    Progress progress_;
    CellNames names_;
    ReportSheet sheet_;
};

}  // namespace qor
