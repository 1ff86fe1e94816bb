#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// Excel's number for the kind of the workbook's file; that of a new one is what it would be saved as.
std::int32_t file_format(const Book& book);

// All raise 1004 naming the file when it cannot be written. The file that was there stays as it was then.

void save_book(const Book& book);
// Without a number the path's extension says the format, else the workbook keeps the one it has. A path without an
// extension gets the format's. Where alerts are shown, the user is asked before a file is replaced; raises 1004 for a
// no.
void save_book_as(const Book& book, const std::u16string& path, std::optional<std::int32_t> format_number);
// Writes a copy in the workbook's own format over what is there; the workbook stays what it is.
void save_book_copy(const Book& book, const std::u16string& path);

// Whether the workbook may be closed: where alerts are shown and it was changed, the user is asked whether to save it.
bool ask_before_closing(const Book& book);
// Saves to its own file, or to one that the user names when it has none. False when the user cancels.
bool save_or_ask_where(const Book& book);

}  // namespace qor::calc
