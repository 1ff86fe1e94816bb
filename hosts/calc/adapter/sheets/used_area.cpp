#include "hosts/calc/adapter/sheets/used_area.hpp"

#include <com/sun/star/sheet/XUsedAreaCursor.hpp>

namespace qor::calc {

Rectangle used_area(const Sheet& sheet) {
    const Ref<css::sheet::XUsedAreaCursor> cursor(Ref{sheet.sheet->createCursor()});
    cursor->gotoStartOfUsedArea(false);
    cursor->gotoEndOfUsedArea(true);
    return rectangle_of(Cells(cursor));
}

}  // namespace qor::calc
