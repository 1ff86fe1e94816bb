#pragma once

#include <optional>
#include <span>
#include <string>

#include "reports/report_fields.hpp"

namespace qor {

// One worksheet as its summary needs it. Everything is read from the host at the first need and kept; what could not
// be read is asked for again. All members raise what the host raises.
class SummarizedSheet {
  public:
    SummarizedSheet(std::u16string workbook_name, std::u16string sheet_name)
        : workbook_name_(std::move(workbook_name)), sheet_name_(std::move(sheet_name)) {}

    const std::u16string& workbook_name() const noexcept { return workbook_name_; }
    const std::u16string& sheet_name() const noexcept { return sheet_name_; }
    const Object& sheet();
    const Object& used_range();

    std::int32_t used_cells();
    std::int32_t data_inputs();
    std::int32_t formulas();

  private:
    const Array& values();
    const Array& formula_texts();

    std::u16string workbook_name_;
    std::u16string sheet_name_;
    Object sheet_;
    Object used_range_;
    Variant values_;
    Variant formula_texts_;
};

using WorksheetSummaryColumn = ReportColumn<SummarizedSheet>;

// The report's fields in their starting order.
std::span<const WorksheetSummaryColumn> worksheet_summary_columns();

}  // namespace qor
