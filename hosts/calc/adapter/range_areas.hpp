#pragma once

#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <optional>
#include <string>
#include <vector>

#include "hosts/calc/adapter/book.hpp"

namespace qor::calc {

// Columns and rows from 0, both ends within.
struct Rectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    std::int32_t width() const { return right - left + 1; }
    std::int32_t height() const { return bottom - top + 1; }
    std::int64_t cells() const { return std::int64_t{width()} * height(); }
    bool within_sheet() const;
    bool contains(const Rectangle& other) const;
    std::optional<Rectangle> common_with(const Rectangle& other) const;
    bool operator==(const Rectangle&) const = default;
};

using Cells = Ref<css::table::XCellRange>;

// What a range counts and enumerates.
enum class RangeUnit : std::uint8_t { cells, rows, columns };

// The rectangles of a range, at least one. The office keeps their places when rows or columns are inserted.
struct RangeAreas {
    Sheet sheet;
    std::vector<Cells> areas;
    RangeUnit unit = RangeUnit::cells;

    Rectangle rectangle(std::size_t area = 0) const;
    // The whole of it as one object of the office, for attributes and the clearing of contents.
    Ref<css::uno::XInterface> whole() const;
};

// Raises 1004 when it reaches over the edge of the sheet.
Cells cells_at(const Sheet& sheet, const Rectangle& rectangle);
RangeAreas range_at(const Sheet& sheet, const Rectangle& rectangle, RangeUnit unit = RangeUnit::cells);
Rectangle rectangle_of(const Cells& cells);
// The whole rows or columns that the areas lie in, area by area.
RangeAreas whole_strips(const RangeAreas& areas, RangeUnit unit);

// The range that a text names, such as "A1:B2,D4", "A:A", "Sheet2!C3" or a defined name. Where it says no sheet, it
// lies on `sheet`; cells count from `origin`'s top left corner. Raises 1004 when it names none.
RangeAreas range_named(const Sheet& sheet, std::u16string_view text, const Rectangle& origin = {});

// As Excel writes it: $A$1:$B$2.
std::u16string address_text(const Rectangle& rectangle, bool row_fixed = true, bool column_fixed = true);

}  // namespace qor::calc
