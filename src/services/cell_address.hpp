#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qor {

// The relative address of the cell in that row and column, counted from 1: "B7".
std::u16string relative_address(std::int32_t row, std::int32_t column);

// How an address is reduced to what a form wants of it. Addresses are relative and name no sheet: "C3,A1:B2".

std::u16string_view first_area(std::u16string_view address);  // before the first comma
std::u16string_view first_cell(std::u16string_view address);  // before the first colon

// The columns of the first cell as an address of whole columns: "B:B" of "B5:D7" and of "B:B", "5:5" of "5:5".
std::u16string whole_column(std::u16string_view address);
// Its row as an address of whole rows: "5:5" of "B5:D7" and of "5:5"; empty for whole columns.
std::u16string whole_row(std::u16string_view address);

}  // namespace qor
