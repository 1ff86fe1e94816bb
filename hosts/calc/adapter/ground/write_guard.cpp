#include "hosts/calc/adapter/ground/write_guard.hpp"

#include <algorithm>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <tuple>

#include "hosts/calc/adapter/ground/array_places.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

constexpr std::u16string_view protected_cell = u"The cell or chart you're trying to change is on a protected sheet.";
constexpr std::u16string_view part_of_array = u"You can't change part of an array.";

[[noreturn]] void refuse(std::u16string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, std::u16string(reason));
}

bool is_protected(const Sheet& sheet) {
    return Ref<css::util::XProtectable>(sheet.sheet)->isProtected();
}

bool has_locked_cell(const Cells& cells) {
    const auto state = Ref<css::beans::XPropertyState>(cells)->getPropertyState("CellProtection");
    return state == css::beans::PropertyState_AMBIGUOUS_VALUE ||
           get_property<css::util::CellProtection>(cells, "CellProtection").IsLocked;
}

// The cells along the edges of a range: an array that reaches out of it has to lie in one of them.
std::vector<Rectangle> edges(const Rectangle& area) {
    std::vector<Rectangle> result;
    if (area.top > 0) result.push_back({area.left, area.top, area.right, area.top});
    if (area.left > 0) result.push_back({area.left, area.top, area.left, area.bottom});
    if (area.bottom < row_limit - 1) result.push_back({area.left, area.bottom, area.right, area.bottom});
    if (area.right < column_limit - 1) result.push_back({area.right, area.top, area.right, area.bottom});
    std::ranges::sort(result, {}, [](const Rectangle& edge) { return std::tuple(edge.left, edge.top, edge.right); });
    const auto same = std::ranges::unique(result);
    result.erase(same.begin(), same.end());
    return result;
}

// Whether an array formula lies partly in the cells and partly outside.
bool cuts_array(const Sheet& sheet, const Cells& cells) {
    const Rectangle area = rectangle_of(cells);
    if (area.cells() == 1) {
        if (Ref<css::sheet::XArrayFormulaRange>(cells)->getArrayFormula().isEmpty()) return false;
        return array_places(sheet, cells).front() != area;
    }
    const std::vector<Rectangle> along = edges(area);
    return std::ranges::any_of(along, [&](const Rectangle& edge) {
        return std::ranges::any_of(array_places(sheet, cells_at(sheet, edge)),
                                   [&](const Rectangle& array) { return !area.contains(array); });
    });
}

}  // namespace

void before_change(const Book& book) {
    if (Ref<css::frame::XStorable>(book.document)->isReadonly()) refuse(u"The workbook is read-only.");
    UndoStep::note_change(book.document);
}

void before_writing(const RangeAreas& areas) {
    if (is_protected(areas.sheet) && std::ranges::any_of(areas.areas, has_locked_cell)) refuse(protected_cell);
    for (const Cells& cells : areas.areas) {
        if (cuts_array(areas.sheet, cells)) refuse(part_of_array);
    }
    before_change(areas.sheet.book);
}

void before_formatting(const RangeAreas& areas) {
    if (is_protected(areas.sheet)) refuse(protected_cell);
    before_change(areas.sheet.book);
}

}  // namespace qor::calc
