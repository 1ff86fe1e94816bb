#pragma once

#include <com/sun/star/datatransfer/XTransferable.hpp>

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// How many rows and columns a copy of these areas has: areas in the same rows are put side by side, areas in the same
// columns below each other. Raises 1004 for other ones.
struct CopySize {
    std::int32_t rows;
    std::int32_t columns;
};
CopySize copy_size(const RangeAreas& areas);

// A copy of the cells as they are now, for another place. Raises 1004 for cells of a hidden sheet.
Ref<css::datatransfer::XTransferable> copy_of(const RangeAreas& areas);
// Puts a copy of cells into a workbook, from the top left corner of the target on.
void insert_copy(const Ref<css::datatransfer::XTransferable>& copy, const RangeAreas& target);

void put_on_clipboard(const RangeAreas& areas);
// Pastes what lies on the clipboard, from the top left corner of the target on. What the target's cells held is
// overwritten without a question. Raises 1004 when there is nothing that can be pasted.
void paste_from_clipboard(const RangeAreas& target, std::int32_t what);

}  // namespace qor::calc
