#pragma once

#include <span>
#include <string>

#include "automation/variant.hpp"

// The reports of cells as they read without any regard to time: each cell is asked by itself, one property after the
// other, and each cell of the report is written by itself. What the tools write is measured against this, and must not
// differ from it.
namespace qor::bench {

struct WalkedSheet {
    std::u16string workbook_name;
    std::u16string sheet_name;
};

// The headings in row 5 of the sheet and the records below.
void walk_cell_information(const Object& application, const WalkedSheet& source, const Object& report);
void walk_date_review(const Object& application, const WalkedSheet& source, const Object& report);

}  // namespace qor::bench
