#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "automation/variant.hpp"

namespace qor {

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

  private:
    void write_title_line(std::int32_t row, std::u16string_view text, double size, bool italic);
    void write_headings(std::span<const std::u16string> headings);
    void write_values(std::span<const std::optional<Variant>> values);
    void write_run(std::size_t first, std::span<const std::optional<Variant>> values);

    const Object& sheet();
    Object cells(std::size_t first_column, std::size_t count);
    template <class Statement>
    void for_row(std::size_t count, Statement statement);

    bool made_ = false;
    Object sheet_;
    std::int32_t row_ = 0;
};

}  // namespace qor
