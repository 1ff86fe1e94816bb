#pragma once

#include <span>

#include "reports/report_fields.hpp"
#include "reports/reported_sheet.hpp"

namespace qor {

// A cell of the block of rows that its sheet is turned to.
struct ReportedCell {
    ReportedSheet& sheet;
    std::size_t place;  // in the block
    std::int32_t row;
    std::int32_t column;

    const Variant& value() const { return sheet.value(place); }
};

using CellColumn = ReportColumn<ReportedCell>;

// The fields in their starting order.
std::span<const CellColumn> cell_information_columns();
std::span<const CellColumn> date_review_columns();

}  // namespace qor
