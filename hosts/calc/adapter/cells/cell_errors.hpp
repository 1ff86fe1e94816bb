#pragma once

#include <vector>

#include "hosts/calc/adapter/ground/cell_query.hpp"

namespace qor::calc {

struct CellError {
    std::int32_t column;
    std::int32_t row;
    std::int32_t code;  // Excel's, such as 2007 for #DIV/0!
};

// The errors in the given places of a range, which all hold formulas with an error.
std::vector<CellError> cell_errors(const Cells& cells, const CellPlaces& places);

}  // namespace qor::calc
