#pragma once

#include <optional>
#include <vector>

#include "hosts/calc/adapter/cells/cell_entry.hpp"
#include "hosts/calc/adapter/cells/contents_before.hpp"
#include "hosts/calc/adapter/cells/formula_entry.hpp"
#include "hosts/calc/adapter/look/number_formats.hpp"

namespace qor::calc {

// Writes a value or an array of them into one rectangle of cells.
class AreaWriter {
  public:
    // Reads the value, and changes nothing yet. Raises 1004 and 13 for what no cell takes.
    AreaWriter(const Sheet& sheet, const Cells& cells, const Variant& value);

    // Whether one call into the office does it all, so that it is done whole or not at all by itself.
    bool is_one_call() const;
    // Keeps what put_back brings back.
    void keep() { before_.emplace(sheet_, cells_); }
    void write();
    void put_back() const {
        if (before_) before_->put_back();
    }

  private:
    using Way = CellEntry::Way;

    void write_data();
    void enter_formulas_here();
    void type_texts();

    Sheet sheet_;
    Cells cells_;
    Rectangle area_;
    std::vector<CellEntry> entries_;        // row by row; a single one for all cells when it is a formula
    std::vector<std::u16string> patterns_;  // of the formulas among the entries, in their order
    std::vector<KindRun> kind_changes_;
    std::optional<ContentsBefore> before_;
};

}  // namespace qor::calc
