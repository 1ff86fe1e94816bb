#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/variant.hpp"

namespace qor {

// One column of records that are written at once.
struct RecordColumn {
    std::vector<Variant> values;  // one a record; Empty leaves the cell blank
    // One a record, or none at all where the cells keep the format they have; null leaves that cell's.
    std::vector<const Variant*> formats;
};

// The worksheet that a report is written into, from the title downwards. Nothing raises: what the host refuses is
// passed over, cell by cell.
class ReportSheet {
  public:
    // Makes the sheet where the user's options want it, with the title block and the headings in row 5. Where the host
    // makes no sheet nothing will be written, since the active sheet is then the user's own.
    ReportSheet(std::u16string_view title, std::span<const std::u16string> headings);

    bool made() const noexcept { return made_; }

    // Writes the next row, left-aligned. One value a heading; one that is absent leaves its cell as it is.
    void add_record(std::span<const std::optional<Variant>> values);
    // The same for many records, with a column for each heading; each is of the same length. Records for which the
    // worksheet has no row left are not written.
    void add_records(std::span<RecordColumn> columns);
    // Whether the worksheet has no row left.
    bool full();

  private:
    void write_title_line(std::int32_t row, std::u16string_view text, double size, bool italic);
    void write_headings(std::span<const std::u16string> headings);
    void write_values(std::span<const std::optional<Variant>> values);
    void write_run(std::size_t first, std::span<const std::optional<Variant>> values);
    struct RowRun {
        std::int32_t first;
        std::int32_t last;
    };
    void write_formats(std::int32_t column, const RecordColumn& records, std::int32_t rows);
    void write_format(std::int32_t column, std::span<const RowRun> runs, const Variant& format);
    void write_block(std::int32_t first_column, std::span<RecordColumn> columns, std::int32_t rows);

    const Object& sheet();
    std::int32_t last_row();
    Object cells(std::size_t first_column, std::size_t count);
    template <class Statement>
    void for_row(std::size_t count, Statement statement);

    bool made_ = false;
    Object sheet_;
    std::int32_t row_ = 0;
    std::int32_t last_row_ = 0;  // of the worksheet; 0: not known yet
};

}  // namespace qor
