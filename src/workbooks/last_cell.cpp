#include "workbooks/last_cell.hpp"

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

struct Direction {
    const MemberName& place;
    const MemberName& whole;
    std::int32_t search_order;
};
const Direction by_rows{names::Row, names::EntireRow, numbers::search_order::by_rows};
const Direction by_columns{names::Column, names::EntireColumn, numbers::search_order::by_columns};

// The row or the column of the last content, 0 where there is none.
std::int32_t last_used(const Variant& sheet, const Direction& direction) {
    const Object found =
        sheet.get(names::Cells)
            .call(names::Find, named(names::What, u"*"), named(names::After, sheet.get(names::Range, u"A1")),
                  named(names::SearchOrder, direction.search_order),
                  named(names::SearchDirection, numbers::search_direction::previous))
            .object();
    return found ? to_long(found.get(direction.place)) : 0;
}

Variant cell_at(const Variant& sheet, const Direction& direction, std::int32_t place) {
    return &direction == &by_rows ? sheet.get(names::Cells, place, 1) : sheet.get(names::Cells, 1, place);
}

void delete_behind(const Variant& sheet, const Direction& direction, std::int32_t used, std::int32_t kept) {
    if (used >= kept) return;
    sheet.get(names::Range, cell_at(sheet, direction, used + 1), cell_at(sheet, direction, kept))
        .get(direction.whole)
        .call(names::Delete);
}

void reset_last_cell(const Variant& sheet) {
    // What the host does not tell is not acted upon.
    std::int32_t kept_row = 0;
    std::int32_t kept_column = 0;
    attempt([&] {
        const Variant cell = sheet.get(names::Cells).call(names::SpecialCells, numbers::special_cells::last);
        kept_row = to_long(cell.get(names::Row));
        kept_column = to_long(cell.get(names::Column));
    });
    std::int32_t used_row = kept_row;
    std::int32_t used_column = kept_column;
    attempt([&] { used_row = last_used(sheet, by_rows); });
    attempt([&] { used_column = last_used(sheet, by_columns); });
    attempt([&] { delete_behind(sheet, by_rows, used_row, kept_row); });
    attempt([&] { delete_behind(sheet, by_columns, used_column, kept_column); });
    attempt([&] { sheet.get(names::UsedRange); });
}

}  // namespace

void QResLasCelEacWor() {
    attempt([] {
        if (!is_on(option::chkT4ResetLastCellUponSave)) return;
        for (const Variant& sheet : gExcel.get(names::ActiveWorkbook).get(names::Worksheets).object().items())
            reset_last_cell(sheet);
    });
}

}  // namespace qor
