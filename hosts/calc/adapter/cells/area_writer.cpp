#include "hosts/calc/adapter/cells/area_writer.hpp"

#include <algorithm>
#include <com/sun/star/sheet/XCellRangeData.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/cells/blank_cells.hpp"
#include "hosts/calc/adapter/cells/formats_before.hpp"
#include "hosts/calc/adapter/cells/transition_entry.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

// The value for a cell at this place of a range: a single row or column is repeated.
const Variant& value_for(const Variant& value, std::size_t row, std::size_t column) {
    static const Variant not_available = ErrorValue{numbers::cell_error::not_available};
    const Array* array = value.array();
    if (!array) return value;
    const std::size_t from_row = array->rows() == 1 ? 0 : row;
    const std::size_t from_column = array->columns() == 1 ? 0 : column;
    if (from_row >= array->rows() || from_column >= array->columns()) return not_available;
    return array->at(from_row, from_column);
}

// Which cells of the area, row by row, have the format of text; empty when none has.
std::vector<bool> cells_of_text(const std::vector<KindOfCells>& kinds, const Rectangle& area) {
    std::vector<bool> result;
    for (const KindOfCells& run : kinds) {
        if (run.kind != NumberKind::text) continue;
        result.resize(static_cast<std::size_t>(area.cells()));
        for (const css::table::CellRangeAddress& at : run.places) {
            for (std::int32_t row = at.StartRow; row <= at.EndRow; ++row) {
                const auto start = result.begin() + std::int64_t{row - area.top} * area.width() - area.left;
                std::fill(start + at.StartColumn, start + at.EndColumn + 1, true);
            }
        }
    }
    return result;
}

}  // namespace

AreaWriter::AreaWriter(const Sheet& sheet, const Cells& cells, const Variant& value)
    : sheet_(sheet), cells_(cells), area_(rectangle_of(cells)) {
    const double shift = days_to_null_date(sheet);
    const auto size = static_cast<std::size_t>(area_.cells());
    const std::vector<KindOfCells> before = number_kinds(sheet, cells);
    const std::vector<bool> of_text = cells_of_text(before, area_);
    const bool all_text = !of_text.empty() && std::ranges::find(of_text, false) == of_text.end();
    const auto is_text = [&](std::size_t place) { return !of_text.empty() && of_text[place]; };
    TransitionEntry transition(sheet);
    if (!value.array()) {
        const auto replaced = all_text ? std::nullopt : transition.replaced(value);
        const CellEntry entry = all_text ? entry_into_text(value, sheet, shift)
                                         : entry_of(replaced ? Variant(*replaced) : value, sheet, shift);
        entries_.assign(entry.way == Way::formula ? 1 : size, entry);
        // A formula for cells of which only some are of text goes into all of them.
        for (std::size_t place = 0; place < of_text.size() && entry.way != Way::formula && !all_text; ++place) {
            if (is_text(place)) entries_[place] = entry_into_text(value, sheet, shift);
        }
    } else {
        entries_.reserve(size);
        for (std::int32_t row = 0; row < area_.height(); ++row) {
            for (std::int32_t column = 0; column < area_.width(); ++column) {
                const Variant& given =
                    value_for(value, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
                if (is_text(entries_.size())) {
                    entries_.push_back(entry_into_text(given, sheet, shift));
                    continue;
                }
                const auto replaced = transition.replaced(given);
                const Variant formula = replaced ? Variant(*replaced) : Variant();
                const Variant& one = replaced ? formula : given;
                entries_.push_back(entry_of(one, sheet, shift));
                if (entries_.back().way != Way::formula) continue;
                const auto* text = one.get_if<std::u16string>();
                patterns_.push_back(formula_pattern(text ? *text : std::get<std::u16string>(entries_.back().content),
                                                    area_.left + column, area_.top + row));
            }
        }
    }
    std::vector<NumberKind> kinds(entries_.size());
    std::ranges::transform(entries_, kinds.begin(), &CellEntry::kind);
    kind_changes_ = number_kind_changes(area_, before, kinds);
}

bool AreaWriter::is_one_call() const {
    return kind_changes_.empty() && std::ranges::all_of(entries_, [](const CellEntry& entry) {
               return entry.way == Way::data && !entry.seems_more;
           });
}

void AreaWriter::write() {
    if (kind_changes_.empty() && area_.cells() == 1 && entries_.front().way == Way::data) {
        // The office undoes this one rightly by itself.
        if (const auto* number = std::get_if<double>(&entries_.front().content)) {
            return Ref {
                cells_->getCellByPosition(0, 0)
                } -> setValue(*number);
        }
    }
    empty_blanks_on_undo(sheet_.book.document, cells_);
    const auto has = [&](Way way) {
        return std::ranges::any_of(entries_, [way](const CellEntry& entry) { return entry.way == way; });
    };
    std::optional<FormatsBefore> formats;
    if (std::ranges::any_of(entries_, &CellEntry::seems_more)) formats.emplace(cells_);
    if (has(Way::data)) write_data();
    if (formats) formats->put_back();
    apply_number_kinds(sheet_, kind_changes_);
    if (has(Way::formula)) {
        enter_formulas_here();
        if (has_unreadable_formula(cells_)) throw Error(ErrorNumber::host_refused);
    }
    if (has(Way::typed)) type_texts();
}

// All that needs no reading at once. The other cells are emptied.
void AreaWriter::write_data() {
    css::uno::Sequence<css::uno::Sequence<css::uno::Any>> data(area_.height());
    auto entry = entries_.begin();
    auto* rows = data.getArray();
    for (sal_Int32 row = 0; row < area_.height(); ++row) {
        rows[row].realloc(area_.width());
        std::transform(entry, entry + area_.width(), rows[row].getArray(), [](const CellEntry& one) {
            if (one.way == Way::data) {
                if (const auto* number = std::get_if<double>(&one.content)) return css::uno::Any(*number);
                if (const auto* text = std::get_if<std::u16string>(&one.content)) return css::uno::Any(to_uno(*text));
            }
            return css::uno::Any(rtl::OUString());
        });
        entry += area_.width();
    }
    Ref<css::sheet::XCellRangeData>(cells_)->setDataArray(data);
}

void AreaWriter::enter_formulas_here() {
    if (entries_.size() == 1) return enter_everywhere(cells_, std::get<std::u16string>(entries_.front().content));
    std::vector<FormulaForCell> formulas;
    formulas.reserve(patterns_.size());
    std::int32_t place = -1;
    for (CellEntry& entry : entries_) {
        ++place;
        if (entry.way != Way::formula) continue;
        formulas.push_back({place % area_.width(), place / area_.width(),
                            std::move(std::get<std::u16string>(entry.content)), std::move(patterns_[formulas.size()])});
    }
    enter_formulas(cells_, std::move(formulas));
}

void AreaWriter::type_texts() {
    std::int32_t place = -1;
    for (const CellEntry& entry : entries_) {
        ++place;
        if (entry.way != Way::typed) continue;
        const Ref cell{cells_->getCellByPosition(place % area_.width(), place / area_.width())};
        set_property(cell, "FormulaLocal", to_uno(std::get<std::u16string>(entry.content)));
    }
}

}  // namespace qor::calc
