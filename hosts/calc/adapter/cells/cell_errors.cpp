#include "hosts/calc/adapter/cells/cell_errors.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/XSearchable.hpp>
#include <set>

#include "automation/host_numbers.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

namespace cell_error = numbers::cell_error;

struct Code {
    std::int32_t calc;
    std::int32_t excel;
};
// The office tells invalid arguments and a calculation that does not converge from a number that is too large.
constexpr std::array codes{
    Code{521, cell_error::null},
    Code{532, cell_error::division_by_zero},
    Code{519, cell_error::value},
    Code{524, cell_error::reference},
    Code{525, cell_error::name},
    Code{503, cell_error::number},
    Code{502, cell_error::number},
    Code{523, cell_error::number},
    Code{32767, cell_error::not_available},
};

std::int32_t code_of(const Ref<css::table::XCell>& cell) {
    const auto* row = std::ranges::find(codes, cell->getError(), &Code::calc);
    if (row != codes.end()) return row->excel;
    // A reference to a deleted sheet gives different errors.
    const rtl::OUString formula = cell->getFormula();
    return view_of(formula).find(u"#REF!") != std::u16string_view::npos ? cell_error::reference : cell_error::value;
}

using Position = std::pair<std::int32_t, std::int32_t>;

// The cells that show the same text: one search finds all of one kind of error.
std::set<Position> cells_showing(const Cells& cells, const rtl::OUString& text) {
    const Ref<css::util::XSearchable> searchable(cells);
    const Ref search{searchable->createSearchDescriptor()};
    search->setSearchString(text);
    constexpr sal_Int16 in_values = 1;
    set_property(search, "SearchType", in_values);
    set_property(search, "SearchWords", true);
    set_property(search, "SearchFormatted", true);
    std::set<Position> result;
    const Ref<css::sheet::XSheetCellRanges> found(Ref{searchable->findAll(search.reference())});
    if (!found) return result;
    for (const css::table::CellRangeAddress& at : found->getRangeAddresses()) {
        for (sal_Int32 row = at.StartRow; row <= at.EndRow; ++row) {
            for (sal_Int32 column = at.StartColumn; column <= at.EndColumn; ++column) result.emplace(column, row);
        }
    }
    return result;
}

}  // namespace

std::vector<CellError> cell_errors(const Cells& cells, const CellPlaces& places) {
    constexpr std::size_t few = 16;  // up to here asking each cell is cheaper than searching
    const Rectangle origin = rectangle_of(cells);
    std::vector<Position> open;
    for (const css::table::CellRangeAddress& at : places) {
        for (sal_Int32 row = at.StartRow; row <= at.EndRow; ++row) {
            for (sal_Int32 column = at.StartColumn; column <= at.EndColumn; ++column) open.emplace_back(column, row);
        }
    }
    std::vector<CellError> result;
    result.reserve(open.size());
    bool searching = true;
    while (!open.empty()) {
        const auto [column, row] = open.back();
        open.pop_back();
        const Ref cell{cells->getCellByPosition(column - origin.left, row - origin.top)};
        const std::int32_t code = code_of(cell);
        result.push_back({column, row, code});
        if (!searching || open.size() < few) continue;
        const std::set<Position> alike = cells_showing(cells, Ref<css::text::XTextRange>(cell)->getString());
        searching = 0 < std::erase_if(open, [&](const Position& position) {
                        if (!alike.contains(position)) return false;
                        result.push_back({position.first, position.second, code});
                        return true;
                    });
    }
    return result;
}

}  // namespace qor::calc
