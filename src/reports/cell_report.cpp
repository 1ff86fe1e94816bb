#include "reports/cell_report.hpp"

#include <algorithm>

#include "reports/pace.hpp"

namespace qor {

CellReport::CellReport(CellReportKind kind, std::span<const std::u16string> headings, Progress progress)
    : kind_(kind),
      columns_(columns_for(headings, kind.columns)),
      progress_(std::move(progress)),
      sheet_(kind.title, headings) {}

void CellReport::add_worksheet(const std::u16string& workbook_name, const std::u16string& sheet_name) {
    attempt([&] {
        ReportedSheet source(workbook_name, sheet_name, names_);
        const CellArea used = source.used_area();
        std::int32_t count = 0;
        attempt([&] { count = source.used_count(); });
        const std::int32_t end = used.row + used.rows;
        Pace pace;
        for (std::int32_t row = used.row; row < end && !sheet_.full() && !columns_.empty();) {
            source.turn_to(row, std::clamp(pace.cells() / used.columns, 1, end - row));
            add_rows(source);
            row += source.block().rows;
            const std::int32_t done = (row - used.row) * used.columns;
            if (pace.is_due() && done < count) progress_(done, count);
        }
        if (count > 0) progress_(count, count);
    });
}

void CellReport::add_rows(ReportedSheet& source) {
    const CellArea& block = source.block();
    std::vector<RecordColumn> records(columns_.size());
    for (std::size_t place = 0; place < block.cells(); ++place) {
        const Variant& value = source.value(place);
        if (value.is_empty() || value.is_missing() || !kind_.is_reported(value)) continue;
        const auto at = static_cast<std::int32_t>(place);
        add_record({source, place, block.row + at / block.columns, block.column + at % block.columns}, records);
    }
    sheet_.add_records(records);
}

void CellReport::add_record(ReportedCell cell, std::span<RecordColumn> records) const {
    for (std::size_t place = 0; place < columns_.size(); ++place) {
        const CellColumn* column = columns_[place];
        Variant& value = records[place].values.emplace_back();
        if (!column) continue;
        if (column->format) {
            const Variant*& format = records[place].formats.emplace_back();
            attempt([&] { format = column->format(cell); });
        }
        attempt([&] { value = column->read(cell); });
    }
}

}  // namespace qor
