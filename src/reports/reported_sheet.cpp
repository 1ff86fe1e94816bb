#include "reports/reported_sheet.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

Object sheet_named(const std::u16string& workbook_name, const std::u16string& sheet_name) {
    return gExcel.get(names::Workbooks, workbook_name).get(names::Worksheets, sheet_name);
}

CellArea area_of(const Object& range) {
    return {.row = to_long(range.get(names::Row)),
            .column = to_long(range.get(names::Column)),
            .rows = to_long(range.get(names::Rows).get(names::Count)),
            .columns = to_long(range.get(names::Columns).get(names::Count))};
}

const std::u16string* find(const CellTexts& texts, std::int32_t row, std::int32_t column) {
    const auto place = texts.find({row, column});
    return place == texts.end() ? nullptr : &place->second;
}

}  // namespace

ReportedSheet::ReportedSheet(std::u16string workbook_name, std::u16string sheet_name, CellNames& all_names)
    : workbook_name_(std::move(workbook_name)),
      sheet_name_(std::move(sheet_name)),
      all_names_(all_names),
      sheet_(sheet_named(workbook_name_, sheet_name_)),
      used_range_(sheet_.get(names::UsedRange)),
      used_area_(area_of(used_range_)),
      number_formats_(sheet_, used_area_, names::NumberFormat),
      has_array_(sheet_, used_area_, names::HasArray),
      has_formula_(sheet_, used_area_, names::HasFormula) {}

std::int32_t ReportedSheet::used_count() const {
    return to_long(used_range_.get(names::Count));
}

void ReportedSheet::turn_to(std::int32_t first_row, std::int32_t rows) {
    block_ = {first_row, used_area_.column, rows, used_area_.columns};
    values_.reset();
    formulas_.reset();
}

const Variant& ReportedSheet::value(std::size_t place) {
    return read(values_, names::Value, place);
}

const Variant& ReportedSheet::formula(std::size_t place) {
    return read(formulas_, names::Formula, place);
}

const std::u16string* ReportedSheet::name(std::int32_t row, std::int32_t column) {
    if (!names_) names_ = &all_names_.on(workbook_name_, sheet_name_);
    return find(*names_, row, column);
}

const std::u16string* ReportedSheet::comment(std::int32_t row, std::int32_t column) {
    if (!comments_) comments_ = comment_texts(sheet_);
    return find(*comments_, row, column);
}

// The block's property, whose cells that the host does not tell stay Missing.
const Variant& ReportedSheet::read(std::optional<Array>& table, const MemberName& property, std::size_t place) const {
    if (!table) {
        table = Array::table(static_cast<std::size_t>(block_.rows), static_cast<std::size_t>(block_.columns));
        for (std::size_t cell = 0; cell < table->size(); ++cell) table->at(cell) = Missing{};
        by_halves(block_, [&](const CellArea& part) {
            Variant answer = range_of(sheet_, part).get(property);
            for (std::int32_t row = 0; row < part.rows; ++row) {
                for (std::int32_t column = 0; column < part.columns; ++column) {
                    const auto to_row = static_cast<std::size_t>(part.row - block_.row + row);
                    const auto to_column = static_cast<std::size_t>(part.column - block_.column + column);
                    const Array* all = answer.array();
                    table->at(to_row, to_column) =
                        all ? all->at(static_cast<std::size_t>(row), static_cast<std::size_t>(column)) : answer;
                }
            }
        });
    }
    return table->at(place);
}

}  // namespace qor
