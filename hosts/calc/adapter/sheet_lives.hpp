#pragma once

#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <memory>
#include <vector>

#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

using Document = Ref<css::sheet::XSpreadsheetDocument>;

// The office goes on answering for a sheet that was deleted, out of the one that took its place. So whoever holds a
// sheet holds its life too, and looks there first.
struct SheetLife {
    Document document;
    Ref<css::sheet::XSpreadsheet> sheet;
    bool gone = false;
};

// Knows who holds sheets.
class SheetLives {
  public:
    std::shared_ptr<const SheetLife> hold(const Document& document, const Ref<css::sheet::XSpreadsheet>& sheet);

    // All that hold the sheet in that place (from 0), to be told when it has been deleted.
    std::vector<std::shared_ptr<SheetLife>> holders_of(const Document& document, std::int32_t index);
    // The workbook is closed.
    void end_all(const Document& document);

  private:
    std::vector<std::weak_ptr<SheetLife>> lives_;
    std::size_t cleaning_at_ = 1024;  // how many there may be before those that nobody holds any more are taken out
};

}  // namespace qor::calc
