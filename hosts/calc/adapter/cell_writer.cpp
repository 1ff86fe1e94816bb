#include "hosts/calc/adapter/cell_writer.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/FillDirection.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellSeries.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include "hosts/calc/adapter/blank_cells.hpp"
#include "hosts/calc/adapter/cell_entry.hpp"
#include "hosts/calc/adapter/number_formats.hpp"
#include "hosts/calc/adapter/undo_step.hpp"
#include "hosts/calc/adapter/write_guard.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

// The value for a cell at this place of a range: a single row or column is repeated.
const Variant& value_for(const Variant& value, std::size_t row, std::size_t column) {
    static const Variant not_available = ErrorValue{2042};
    const Array* array = value.array();
    if (!array) return value;
    const std::size_t from_row = array->rows() == 1 ? 0 : row;
    const std::size_t from_column = array->columns() == 1 ? 0 : column;
    if (from_row >= array->rows() || from_column >= array->columns()) return not_available;
    return array->at(from_row, from_column);
}

// The errors that only a formula which cannot be read gives: bad characters, brackets, missing operators and operands.
bool is_unreadable(std::int32_t error) {
    static constexpr std::array codes{501, 507, 508, 509, 510, 511, 512, 520};
    return std::ranges::find(codes, error) != codes.end();
}

void enter_formula(const Ref<css::table::XCell>& cell, const std::u16string& formula) {
    const rtl::OUString before = cell->getFormula();
    cell->setFormula(to_uno(formula));
    if (!is_unreadable(cell->getError())) return;
    cell->setFormula(before);
    throw Error(ErrorNumber::host_refused);
}

class AreaWriter {
  public:
    AreaWriter(const Sheet& sheet, const Cells& cells) : sheet_(sheet), cells_(cells), area_(rectangle_of(cells)) {}

    void write(const Variant& value) {
        const double shift = days_to_null_date(sheet_);
        const auto rows = static_cast<std::size_t>(area_.height());
        const auto columns = static_cast<std::size_t>(area_.width());
        if (!value.array()) {
            CellEntry entry = entry_of(value, sheet_, shift);
            if (entry.way == CellEntry::Way::formula && rows * columns > 1) return fill(entry);
            entries_.assign(rows * columns, entry);
        } else {
            entries_.reserve(rows * columns);
            for (std::size_t row = 0; row < rows; ++row) {
                for (std::size_t column = 0; column < columns; ++column) {
                    entries_.push_back(entry_of(value_for(value, row, column), sheet_, shift));
                }
            }
        }
        write_data();
        std::vector<NumberKind> kinds(entries_.size());
        std::ranges::transform(entries_, kinds.begin(), &CellEntry::kind);
        apply_number_kinds(sheet_, area_, kinds);
        write_others();
    }

  private:
    using Way = CellEntry::Way;

    // One formula for all cells: its relative references move along.
    void fill(const CellEntry& entry) {
        apply_number_kinds(sheet_, area_, std::vector<NumberKind>(static_cast<std::size_t>(area_.cells())));
        const Ref first{cells_->getCellByPosition(0, 0)};
        enter_formula(first, std::get<std::u16string>(entry.content));
        const Ref<css::container::XIndexAccess> formats(
            Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells_)->getUniqueCellFormatRanges()});
        // A series takes the first cell's look along, which must not change that of the others.
        if (formats->getCount() == 1) {
            const Ref first_column{cells_->getCellRangeByPosition(0, 0, 0, area_.height() - 1)};
            Ref<css::sheet::XCellSeries>(first_column)->fillAuto(css::sheet::FillDirection_TO_BOTTOM, 1);
            Ref<css::sheet::XCellSeries>(cells_)->fillAuto(css::sheet::FillDirection_TO_RIGHT, 1);
            return;
        }
        const auto tokens = Ref<css::sheet::XFormulaTokens>(first)->getTokens();
        for (std::int32_t row = 0; row < area_.height(); ++row) {
            for (std::int32_t column = 0; column < area_.width(); ++column) {
                const Ref cell{cells_->getCellByPosition(column, row)};
                if (row > 0 || column > 0) Ref<css::sheet::XFormulaTokens>(cell)->setTokens(tokens);
            }
        }
    }

    // All that needs no reading at once. The other cells are emptied, unless there are only such.
    void write_data() {
        if (std::ranges::none_of(entries_, [](const CellEntry& entry) { return entry.way == Way::data; })) return;
        css::uno::Sequence<css::uno::Sequence<css::uno::Any>> data(area_.height());
        auto entry = entries_.begin();
        auto* rows = data.getArray();
        for (sal_Int32 row = 0; row < area_.height(); ++row) {
            rows[row].realloc(area_.width());
            std::transform(entry, entry + area_.width(), rows[row].getArray(), any_of);
            entry += area_.width();
        }
        empty_blanks_on_undo(sheet_.book.document, cells_);
        Ref<css::sheet::XCellRangeData>(cells_)->setDataArray(data);
    }

    static css::uno::Any any_of(const CellEntry& entry) {
        if (entry.way == Way::data) {
            if (const auto* number = std::get_if<double>(&entry.content)) return css::uno::Any(*number);
            if (const auto* text = std::get_if<std::u16string>(&entry.content)) return css::uno::Any(to_uno(*text));
        }
        return css::uno::Any(rtl::OUString());
    }

    void write_others() {
        std::size_t place = 0;
        for (const CellEntry& entry : entries_) {
            const auto row = static_cast<std::int32_t>(place) / area_.width();
            const auto column = static_cast<std::int32_t>(place) % area_.width();
            ++place;
            if (entry.way == Way::data) continue;
            const Ref cell{cells_->getCellByPosition(column, row)};
            const auto& text = std::get<std::u16string>(entry.content);
            if (entry.way == Way::formula) {
                enter_formula(cell, text);
            } else {
                set_property(cell, "FormulaLocal", to_uno(text));
            }
        }
    }

    const Sheet& sheet_;
    const Cells& cells_;
    Rectangle area_;
    std::vector<CellEntry> entries_;
};

}  // namespace

void write_values(const RangeAreas& areas, const Variant& value) {
    const UndoStep step(u"Input");
    before_writing(areas);
    for (const Cells& cells : areas.areas) AreaWriter(areas.sheet, cells).write(value);
}

void write_array_formula(const RangeAreas& areas, const std::u16string& formula) {
    const CellEntry entry = entry_of(formula, areas.sheet, 0);
    if (entry.way != CellEntry::Way::formula) return write_values(areas, formula);
    before_writing(areas);
    const Ref<css::sheet::XArrayFormulaRange> cells(areas.areas.front());
    cells->setArrayFormula(to_uno(std::get<std::u16string>(entry.content)));
    // A refusal is silent.
    if (cells->getArrayFormula().isEmpty()) throw Error(ErrorNumber::host_refused);
}

void clear_contents(const RangeAreas& areas) {
    namespace flag = css::sheet::CellFlags;
    before_writing(areas);
    Ref<css::sheet::XSheetOperation>(areas.whole())
        ->clearContents(flag::VALUE | flag::DATETIME | flag::STRING | flag::FORMULA);
}

}  // namespace qor::calc
