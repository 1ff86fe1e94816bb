#pragma once

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "hosts/calc/adapter/ground/book.hpp"

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

// Rectangles of cells. Many that were named at once are one object of the office, and each by itself is taken out of it
// only when it is needed: to format them all costs a few calls, however many they are.
class AreaList {
  public:
    AreaList() = default;
    AreaList(std::initializer_list<Cells> areas) : areas_(areas) {}
    AreaList(Ref<css::container::XIndexAccess> together, std::size_t size)
        : together_(std::move(together)), size_together_(size) {}

    std::size_t size() const noexcept { return together_ ? size_together_ : areas_.size(); }
    bool empty() const noexcept { return size() == 0; }
    const Cells& front() const { return each().front(); }
    const Cells& operator[](std::size_t place) const { return each()[place]; }
    auto begin() const { return each().begin(); }
    auto end() const { return each().end(); }
    // The one object; empty where there is none.
    const Ref<css::container::XIndexAccess>& together() const noexcept { return together_; }

    void push_back(Cells area);

  private:
    const std::vector<Cells>& each() const;

    mutable std::vector<Cells> areas_;
    Ref<css::container::XIndexAccess> together_;
    std::size_t size_together_ = 0;
};

// What a range counts and enumerates.
enum class RangeUnit : std::uint8_t { cells, rows, columns };

// The rectangles of a range, at least one. The office keeps their places when rows or columns are inserted.
struct RangeAreas {
    Sheet sheet;
    AreaList areas;
    RangeUnit unit = RangeUnit::cells;

    Rectangle rectangle(std::size_t area = 0) const;
    // The whole of it as one object of the office, for attributes and the clearing of contents.
    Ref<css::uno::XInterface> whole() const;
};

// Raises 1004 when it reaches over the edge of the sheet.
Cells cells_at(const Sheet& sheet, const Rectangle& rectangle);
RangeAreas range_at(const Sheet& sheet, const Rectangle& rectangle, RangeUnit unit = RangeUnit::cells);
// Many at once: one call for all that lie within the sheet.
RangeAreas ranges_at(const Sheet& sheet, const std::vector<Rectangle>& rectangles);
// The same as one object of the office.
Ref<css::sheet::XSheetCellRangeContainer> ranges_in(const Document& document,
                                                    const css::uno::Sequence<css::table::CellRangeAddress>& places);
Rectangle rectangle_of(const Cells& cells);
// The whole rows or columns that the areas lie in, area by area.
RangeAreas whole_strips(const RangeAreas& areas, RangeUnit unit);

// The range that a text names, such as "A1:B2,D4", "A:A", "Sheet2!C3" or a defined name. Where it says no sheet, it
// lies on `sheet`; cells count from `origin`'s top left corner. Raises 1004 when it names none.
RangeAreas range_named(const Sheet& sheet, std::u16string_view text, const Rectangle& origin = {});

// As Excel writes it: $A$1:$B$2.
std::u16string address_text(const Rectangle& rectangle, bool row_fixed = true, bool column_fixed = true);

}  // namespace qor::calc
