#include "reports/cell_area.hpp"

#include "automation/member_names.hpp"

namespace qor {

std::pair<CellArea, CellArea> CellArea::halves() const {
    CellArea first = *this;
    CellArea second = *this;
    if (rows > 1) {
        first.rows = rows / 2;
        second.row += first.rows;
        second.rows -= first.rows;
    } else {
        first.columns = columns / 2;
        second.column += first.columns;
        second.columns -= first.columns;
    }
    return {first, second};
}

Object range_of(const Object& sheet, const CellArea& area) {
    const Variant first = sheet.get(names::Cells, area.row, area.column);
    if (area.cells() == 1) return first;
    return sheet.get(names::Range, first,
                     sheet.get(names::Cells, area.row + area.rows - 1, area.column + area.columns - 1));
}

}  // namespace qor
