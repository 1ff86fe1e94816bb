#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

struct PrintOptions {
    std::optional<std::int32_t> first_page;  // of the sheet, from 1
    std::optional<std::int32_t> last_page;
    std::int32_t copies = 1;
    bool collate = true;
    std::optional<std::u16string> printer;  // the default one when none is named
    std::optional<std::u16string> file;     // a path, to print into instead
};

// Prints the pages of one sheet and waits for the end. An empty sheet has none. Raises 1004 when the sheet is hidden,
// there is no printer, or the file is not written.
void print_sheet(const Sheet& sheet, const PrintOptions& options);

}  // namespace qor::calc
