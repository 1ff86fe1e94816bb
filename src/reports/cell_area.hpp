#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "automation/variant.hpp"

namespace qor {

// A rectangle of cells on a worksheet. Rows and columns count from 1.
struct CellArea {
    std::int32_t row = 1;
    std::int32_t column = 1;
    std::int32_t rows = 1;
    std::int32_t columns = 1;

    std::size_t cells() const { return static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns); }
    // Upper and lower half, of one row left and right half.
    std::pair<CellArea, CellArea> halves() const;
};

// Raises what the host raises.
Object range_of(const Object& sheet, const CellArea& area);

// Runs the statement on the cells at once, and where the host refuses, on the halves, down to the single cell. So only
// what the host refuses stays as it was, as if each cell had been asked for.
template <class Statement>
void by_halves(const CellArea& area, const Statement& statement) {
    if (attempt([&] { statement(area); }) == 0 || area.cells() <= 1) return;
    const auto [first, second] = area.halves();
    by_halves(first, statement);
    by_halves(second, statement);
}

}  // namespace qor
