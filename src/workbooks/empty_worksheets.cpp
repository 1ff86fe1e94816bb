#include "workbooks/empty_worksheets.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/host_state.hpp"
#include "runtime/conversion.hpp"
#include "runtime/trim.hpp"

namespace qor {
namespace {

bool is_empty(const Object& worksheets, const Object& worksheet) {
    return to_double(gExcel.get(names::WorksheetFunction).call(names::CountA, worksheet.get(names::Cells))) == 0 &&
           to_long(worksheets.get(names::Count)) > 1 && to_long(worksheet.get(names::Shapes).get(names::Count)) == 0;
}

// A range's property as an array; the host answers a single cell's as the value itself.
Variant cells_of(const Object& range, const MemberName& property) {
    Variant answer = range.get(property);
    return answer.array() ? answer : Variant(Array::list({std::move(answer)}));
}

// Text of blanks, or of nothing, which no formula made. A cell that is empty anyway is none.
bool is_blank(const Variant& value, const Variant& formula) {
    const auto* text = value.get_if<std::u16string>();
    const auto* entered = formula.get_if<std::u16string>();
    return text && trim(*text).empty() && entered && trim(*entered).empty();
}

// Places in the range, from 1. What is refused as a whole is tried cell by cell.
void clear(const Object& range, std::int32_t row, std::int32_t first, std::int32_t last) {
    const auto cell = [&](std::int32_t column) { return range.get(names::Cells, row, column); };
    const auto clear_run = [&] {
        range.get(names::Worksheet).get(names::Range, cell(first), cell(last)).call(names::ClearContents);
    };
    if (attempt(clear_run) == 0) return;
    for (std::int32_t column = first; column <= last; ++column)
        attempt([&] { cell(column).call(names::ClearContents); });
}

void clear_blank_cells(const Object& range) {
    const Variant values = cells_of(range, names::Value);
    const Variant formulas = cells_of(range, names::Formula);
    const Array& value = *values.array();
    const Array& formula = *formulas.array();
    for (std::size_t row = 0; row < value.rows(); ++row) {
        for (std::size_t column = 0; column < value.columns(); ++column) {
            const std::size_t first = column;
            while (column < value.columns() && is_blank(value.at(row, column), formula.at(row, column))) ++column;
            if (column > first)
                clear(range, static_cast<std::int32_t>(row) + 1, static_cast<std::int32_t>(first) + 1,
                      static_cast<std::int32_t>(column));
        }
    }
}

}  // namespace

void delete_if_empty(const Object& worksheets, const Object& worksheet) {
    bool empty = false;
    attempt([&] { empty = is_empty(worksheets, worksheet); });
    if (!empty) {
        attempt([&] { clear_blank_cells(worksheet.get(names::UsedRange)); });
        attempt([&] { empty = is_empty(worksheets, worksheet); });
    }
    if (empty) attempt([&] { worksheet.call(names::Delete); });
}

void DeleteEmptyWorksheets(const std::u16string& WorkbookName) {
    const SwitchedOff display_alerts(names::DisplayAlerts);
    const Object worksheets = gExcel.get(names::Workbooks, WorkbookName).get(names::Worksheets);
    for (std::int32_t place = to_long(worksheets.get(names::Count)); place >= 1; --place)
        delete_if_empty(worksheets, worksheets.get(names::Item, place));
}

}  // namespace qor
