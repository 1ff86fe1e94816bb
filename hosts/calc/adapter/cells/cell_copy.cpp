#include "hosts/calc/adapter/cells/cell_copy.hpp"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeMovement.hpp>

#include "hosts/calc/adapter/cells/cell_writer.hpp"
#include "hosts/calc/adapter/cells/clipboard.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"

namespace qor::calc {
namespace {

void copy_rectangle(const Sheet& from, const Rectangle& area, const Sheet& to, std::int32_t left, std::int32_t top) {
    const auto source = Ref<css::sheet::XCellRangeAddressable>(cells_at(from, area))->getRangeAddress();
    const css::table::CellAddress target{static_cast<sal_Int16>(to.index()), left, top};
    Ref<css::sheet::XCellRangeMovement>(from.sheet)->copyRange(target, source);
}

// What the first `size` of the place holds is repeated over all of it, each time twice as much.
void repeat(const RangeAreas& place, const CopySize& size) {
    const Rectangle all = place.rectangle();
    for (std::int32_t rows = size.rows; rows < all.height(); rows *= 2) {
        const std::int32_t more = std::min(rows, all.height() - rows);
        copy_rectangle(place.sheet, {all.left, all.top, all.left + size.columns - 1, all.top + more - 1}, place.sheet,
                       all.left, all.top + rows);
    }
    for (std::int32_t columns = size.columns; columns < all.width(); columns *= 2) {
        const std::int32_t more = std::min(columns, all.width() - columns);
        copy_rectangle(place.sheet, {all.left, all.top, all.left + more - 1, all.bottom}, place.sheet,
                       all.left + columns, all.top);
    }
}

}  // namespace

void copy_cells(const RangeAreas& source, const RangeAreas& target) {
    const UndoStep step(u"Copy");
    const CopySize size = copy_size(source);
    const Rectangle asked = target.rectangle();
    const bool repeated = asked.height() % size.rows == 0 && asked.width() % size.columns == 0;
    const RangeAreas place =
        repeated
            ? target
            : range_at(target.sheet, {asked.left, asked.top, asked.left + size.columns - 1, asked.top + size.rows - 1});
    before_writing(place);
    const bool same_book = source.sheet.book.document == target.sheet.book.document;
    if (!same_book) {
        const auto copy = copy_of(source);
        clear_contents(place);
        insert_copy(copy, place);
    } else {
        std::int32_t left = asked.left;
        std::int32_t top = asked.top;
        for (std::size_t i = 0; i < source.areas.size(); ++i) {
            const Rectangle area = source.rectangle(i);
            copy_rectangle(source.sheet, area, target.sheet, left, top);
            if (size.rows > area.height()) {
                top += area.height();
            } else {
                left += area.width();
            }
        }
    }
    if (repeated) repeat(place, size);
}

}  // namespace qor::calc
