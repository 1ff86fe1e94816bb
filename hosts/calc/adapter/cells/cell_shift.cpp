#include "hosts/calc/adapter/cells/cell_shift.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/sheet/CellDeleteMode.hpp>
#include <com/sun/star/sheet/CellInsertMode.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeMovement.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/formula/notation.hpp"

namespace qor::calc {
namespace {

using css::sheet::CellDeleteMode;
using css::sheet::CellInsertMode;

struct Direction {
    std::int32_t excel;
    bool along_rows;  // the neighbours move sideways
};
constexpr std::array directions{Direction{numbers::shift::to_left, true}, Direction{numbers::shift::to_right, true},
                                Direction{numbers::shift::up, false}, Direction{numbers::shift::down, false}};

bool is_whole_rows(const Rectangle& area) {
    return area.width() == column_limit;
}
bool is_whole_columns(const Rectangle& area) {
    return area.height() == row_limit;
}

bool moves_sideways(const Rectangle& area, std::optional<std::int32_t> direction) {
    if (is_whole_rows(area)) return false;
    if (is_whole_columns(area)) return true;
    if (!direction) return area.height() > area.width();
    const auto* row = std::ranges::find(directions, *direction, &Direction::excel);
    if (row == directions.end()) throw Error(ErrorNumber::host_refused);
    return row->along_rows;
}

CellInsertMode insert_mode(const Rectangle& area, bool sideways) {
    if (is_whole_rows(area)) return css::sheet::CellInsertMode_ROWS;
    if (is_whole_columns(area)) return css::sheet::CellInsertMode_COLUMNS;
    return sideways ? css::sheet::CellInsertMode_RIGHT : css::sheet::CellInsertMode_DOWN;
}

CellDeleteMode delete_mode(const Rectangle& area, bool sideways) {
    if (is_whole_rows(area)) return css::sheet::CellDeleteMode_ROWS;
    if (is_whole_columns(area)) return css::sheet::CellDeleteMode_COLUMNS;
    return sideways ? css::sheet::CellDeleteMode_LEFT : css::sheet::CellDeleteMode_UP;
}

// The areas from the last one on the sheet to the first, so that those still to come stay in place.
std::vector<Rectangle> from_the_end(const RangeAreas& areas) {
    std::vector<Rectangle> result;
    for (std::size_t i = 0; i < areas.areas.size(); ++i) result.push_back(areas.rectangle(i));
    std::ranges::sort(result, std::greater(), [](const Rectangle& area) { return std::pair(area.top, area.left); });
    for (std::size_t i = 0; i < result.size(); ++i) {
        for (std::size_t k = i + 1; k < result.size(); ++k) {
            if (!result[i].common_with(result[k])) continue;
            throw Error(ErrorNumber::host_refused, {}, u"That command cannot be used on overlapping selections.");
        }
    }
    return result;
}

css::table::CellRangeAddress address_on(const Sheet& sheet, const Rectangle& area) {
    return Ref<css::sheet::XCellRangeAddressable>(cells_at(sheet, area))->getRangeAddress();
}

// The cells that come after the area in the direction of the move; none at the edge of the sheet.
std::optional<Rectangle> cells_behind(const Rectangle& area, bool sideways) {
    Rectangle behind = area;
    if (sideways) {
        behind.left = area.right + 1;
        behind.right = behind.left;
    } else {
        behind.top = area.bottom + 1;
        behind.bottom = behind.top;
    }
    return behind.within_sheet() ? std::optional(behind) : std::nullopt;
}

[[noreturn]] void refuse() {
    throw Error(ErrorNumber::host_refused, {},
                u"The cells cannot be moved: an array formula, merged cells or the edge of the sheet is in the way.");
}

}  // namespace

// The office refuses without a word; a range that did not move along tells.
void insert_cells(const RangeAreas& areas, std::optional<std::int32_t> direction) {
    const UndoStep step(u"Insert");
    const std::vector<Rectangle> rectangles = from_the_end(areas);
    before_formatting(areas);
    const Ref<css::sheet::XCellRangeMovement> sheet(areas.sheet.sheet);
    for (const Rectangle& area : rectangles) {
        const bool sideways = moves_sideways(area, direction);
        const Cells witness = cells_at(areas.sheet, area);
        sheet->insertCells(address_on(areas.sheet, area), insert_mode(area, sideways));
        if (rectangle_of(witness) == area) refuse();
    }
}

void delete_cells(const RangeAreas& areas, std::optional<std::int32_t> direction) {
    const UndoStep step(u"Delete");
    const std::vector<Rectangle> rectangles = from_the_end(areas);
    before_writing(areas);
    before_formatting(areas);
    const Ref<css::sheet::XCellRangeMovement> sheet(areas.sheet.sheet);
    for (const Rectangle& area : rectangles) {
        const bool sideways = moves_sideways(area, direction);
        const auto behind = cells_behind(area, sideways);
        const Cells witness = behind ? cells_at(areas.sheet, *behind) : Cells();
        sheet->removeRange(address_on(areas.sheet, area), delete_mode(area, sideways));
        if (witness && rectangle_of(witness) == *behind) refuse();
    }
}

}  // namespace qor::calc
