#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// What a number is, which only its format tells.
// Cells of text make a text of every number that is written into them.
enum class NumberKind : std::uint8_t { plain, date, currency, boolean, text };

struct KindOfCells {
    NumberKind kind;
    std::vector<css::table::CellRangeAddress> places;
};

// The cells of a range whose numbers are more than plain ones.
std::vector<KindOfCells> number_kinds(const Sheet& sheet, const Cells& cells);
// Whether it is the format that cells have from the start. The office has one in each language, and may answer any.
bool is_general_format(std::int32_t format_key);
NumberKind kind_of_format(const Sheet& sheet, std::int32_t format_key);

// The length of a dollar sign at the start of the code that a file brought escaped or in quotes, which Excel does not
// show; 0 when there is none.
std::size_t masked_dollar(std::u16string_view code);

// Days from 30 December 1899 to the day that the workbook counts from.
double days_to_null_date(const Sheet& sheet);

}  // namespace qor::calc
