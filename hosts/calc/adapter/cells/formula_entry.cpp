#include "hosts/calc/adapter/cells/formula_entry.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/sheet/FillDirection.hpp>
#include <com/sun/star/sheet/FormulaResult.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellSeries.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>

#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/adapter/look/looks.hpp"
#include "hosts/calc/formula/reference_style.hpp"
#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

// From here on filling is faster than entering.
constexpr std::ptrdiff_t filled_run = 16;

Cells part_of(const Cells& cells, const Rectangle& part) {
    return cells->getCellRangeByPosition(part.left, part.top, part.right, part.bottom);
}

void fill(const Cells& cells) {
    const Rectangle area = rectangle_of(cells);
    const Cells first_column = part_of(cells, {0, 0, 0, area.height() - 1});
    Ref<css::sheet::XCellSeries>(first_column)->fillAuto(css::sheet::FillDirection_TO_BOTTOM, 1);
    if (area.width() > 1) Ref<css::sheet::XCellSeries>(cells)->fillAuto(css::sheet::FillDirection_TO_RIGHT, 1);
}

void repeat_tokens(const Cells& cells) {
    const Rectangle area = rectangle_of(cells);
    const auto tokens = Ref<css::sheet::XFormulaTokens>(Ref{cells->getCellByPosition(0, 0)})->getTokens();
    for (std::int32_t row = 0; row < area.height(); ++row) {
        for (std::int32_t column = 0; column < area.width(); ++column) {
            const Ref cell{cells->getCellByPosition(column, row)};
            if (row > 0 || column > 0) Ref<css::sheet::XFormulaTokens>(cell)->setTokens(tokens);
        }
    }
}

// The formulas of a rectangle that is full of them, one call for all.
void enter_block(const Cells& cells, const Rectangle& block, const std::vector<std::vector<std::u16string>>& columns) {
    css::uno::Sequence<css::uno::Sequence<rtl::OUString>> texts(block.height());
    auto* rows = texts.getArray();
    for (std::int32_t row = 0; row < block.height(); ++row) {
        rows[row].realloc(block.width());
        for (std::int32_t column = 0; column < block.width(); ++column) {
            rows[row].getArray()[column] =
                to_uno(columns[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)]);
        }
    }
    Ref<css::sheet::XCellRangeFormula>(part_of(cells, block))->setFormulaArray(texts);
}

// Gathers formulas of neighbouring columns that reach from the same row to the same row.
class Blocks {
  public:
    explicit Blocks(const Cells& cells) : cells_(cells) {}

    void add(std::int32_t column, std::int32_t top, std::vector<std::u16string> texts) {
        const auto bottom = top + static_cast<std::int32_t>(texts.size()) - 1;
        const auto beside = std::ranges::find_if(open_, [&](const Block& block) {
            return block.place.right + 1 == column && block.place.top == top && block.place.bottom == bottom;
        });
        if (beside == open_.end()) {
            open_.push_back({{column, top, column, bottom}, {}});
            open_.back().columns.push_back(std::move(texts));
        } else {
            beside->place.right = column;
            beside->columns.push_back(std::move(texts));
        }
    }
    // Enters the blocks that no column from here on can join.
    void close_before(std::int32_t column) {
        std::erase_if(open_, [&](const Block& block) {
            if (block.place.right + 1 >= column) return false;
            enter_block(cells_, block.place, block.columns);
            return true;
        });
    }

  private:
    struct Block {
        Rectangle place;
        std::vector<std::vector<std::u16string>> columns;
    };

    const Cells& cells_;
    std::vector<Block> open_;
};

// The errors that only a formula which cannot be read gives: bad characters, brackets, missing operators and operands.
bool is_unreadable(std::int32_t error) {
    static constexpr std::array codes{501, 507, 508, 509, 510, 511, 512, 520};
    return std::ranges::find(codes, error) != codes.end();
}

}  // namespace

std::u16string formula_pattern(std::u16string_view excel_formula, std::int32_t column, std::int32_t row) {
    ReferenceConversion conversion;
    conversion.to = ReferenceStyle::row_column;
    conversion.base = {column, row};
    return convert_references(excel_formula, conversion).value_or(std::u16string());
}

void enter_everywhere(const Cells& cells, const std::u16string& text) {
    Ref {
        cells->getCellByPosition(0, 0)
        } -> setFormula(to_uno(text));
    const Looks looks(cells);
    if (!looks.alike() && !looks.can_be_given_back()) return repeat_tokens(cells);
    try {
        fill(cells);
        looks.give_back();
    } catch (...) {
        attempt([&] { guarded([&] { looks.give_back(); }); });
        throw;
    }
}

void enter_formulas(const Cells& cells, std::vector<FormulaForCell> formulas) {
    std::ranges::stable_sort(formulas, {}, [](const FormulaForCell& one) { return std::pair(one.column, one.row); });
    Blocks blocks(cells);
    std::vector<std::u16string> single;  // above the formula that is looked at, none of them filled
    std::int32_t single_top = 0;
    const auto end_singles = [&](std::int32_t column) {
        if (!single.empty()) blocks.add(column, single_top, std::exchange(single, {}));
    };
    for (auto first = formulas.begin(); first != formulas.end();) {
        const auto row_if_joined = [&](auto one) { return first->row + static_cast<std::int32_t>(one - first); };
        auto last = first;
        do {
            ++last;
        } while (last != formulas.end() && last->column == first->column && last->row == row_if_joined(last) &&
                 last->pattern == first->pattern && !last->pattern.empty());
        const auto single_bottom = single_top + static_cast<std::int32_t>(single.size());
        const bool filled = last - first >= filled_run;
        const bool new_column = first != formulas.begin() && (first - 1)->column != first->column;
        if (new_column) end_singles((first - 1)->column);
        if (filled || single_bottom != first->row) end_singles(first->column);
        if (new_column) blocks.close_before(first->column);
        if (filled) {
            enter_everywhere(part_of(cells, {first->column, first->row, first->column, (last - 1)->row}), first->text);
        } else {
            if (single.empty()) single_top = first->row;
            for (auto one = first; one != last; ++one) single.push_back(std::move(one->text));
        }
        first = last;
    }
    if (!formulas.empty()) end_singles(formulas.back().column);
    blocks.close_before(column_limit + 1);
}

bool has_unreadable_formula(const Cells& cells) {
    const Rectangle area = rectangle_of(cells);
    for (const css::table::CellRangeAddress& at : formula_places(cells, css::sheet::FormulaResult::ERROR)) {
        for (std::int32_t row = at.StartRow; row <= at.EndRow; ++row) {
            for (std::int32_t column = at.StartColumn; column <= at.EndColumn; ++column) {
                const Ref cell{cells->getCellByPosition(column - area.left, row - area.top)};
                if (is_unreadable(cell->getError())) return true;
            }
        }
    }
    return false;
}

}  // namespace qor::calc
