#pragma once

#include <optional>
#include <string>

#include "reports/cell_texts.hpp"
#include "reports/shared_property.hpp"

namespace qor {

// One worksheet whose cells are reported. What its cells hold is read a block of rows at a time, and only when a field
// needs it; of what the host refuses as a whole it is asked for the parts.
class ReportedSheet {
  public:
    // Raises what the host raises.
    ReportedSheet(std::u16string workbook_name, std::u16string sheet_name, CellNames& all_names);

    const std::u16string& workbook_name() const noexcept { return workbook_name_; }
    const std::u16string& sheet_name() const noexcept { return sheet_name_; }
    // As the host gives it; raises what the host raises.
    std::int32_t used_count() const;
    const CellArea& used_area() const noexcept { return used_area_; }

    // Rows of the used range, whose cells are asked for from now on, by their places in it.
    void turn_to(std::int32_t first_row, std::int32_t rows);
    const CellArea& block() const noexcept { return block_; }
    // Missing where the host does not tell.
    const Variant& value(std::size_t place);
    const Variant& formula(std::size_t place);

    // Null pointers where the host does not tell.
    const Variant* number_format(std::int32_t row, std::int32_t column) { return number_formats_.at(row, column); }
    const Variant* has_array(std::int32_t row, std::int32_t column) { return has_array_.at(row, column); }
    const Variant* has_formula(std::int32_t row, std::int32_t column) { return has_formula_.at(row, column); }
    // Null pointers where there is none. They raise what the host raises, and then ask again the next time.
    const std::u16string* name(std::int32_t row, std::int32_t column);
    const std::u16string* comment(std::int32_t row, std::int32_t column);

  private:
    const Variant& read(std::optional<Array>& table, const MemberName& property, std::size_t place) const;

    std::u16string workbook_name_;
    std::u16string sheet_name_;
    CellNames& all_names_;
    Object sheet_;
    Object used_range_;
    CellArea used_area_;
    SharedProperty number_formats_;
    SharedProperty has_array_;
    SharedProperty has_formula_;
    const CellTexts* names_ = nullptr;
    std::optional<CellTexts> comments_;
    CellArea block_;
    std::optional<Array> values_;
    std::optional<Array> formulas_;
};

}  // namespace qor
