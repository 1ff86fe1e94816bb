#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "hosts/calc/formula/notation.hpp"

// References by the numbers of rows and columns: R5C2 is a fixed cell, R[-1]C[2] is counted from a cell, which is
// called the base here; R5 and C[1] are a whole row and a whole column.
namespace qor::calc {

struct CellPlace {
    std::int32_t column = 0;
    std::int32_t row = 0;
};

// Reads a corner at `position`, which moves behind it; none when there stands something else. What is counted over the
// edge of the sheet goes on at the opposite one.
std::optional<Corner> take_row_column(std::u16string_view text, std::size_t& position, const CellPlace& base);

std::u16string row_column_text(const Corner& corner, const CellPlace& base);
// R1C1:R2C2; one whole row or column as R1 and C1; "#REF!" if a corner is deleted.
std::u16string row_column_range_text(const Corner& first, const Corner& last, const CellPlace& base);

}  // namespace qor::calc
