#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

Book add_book(const HostPointer& host);
// A new workbook made after that file. Raises as open_book does.
Book add_book_after(const HostPointer& host, const std::u16string& path);
// A workbook that is open already is only brought to the front. Raises 1004 naming the file when it is missing, cannot
// be read, or has the name of another workbook that is open.
Book open_book(const HostPointer& host, const std::u16string& path, bool read_only);
// Without a question: what was not saved is lost.
void close_book(const Book& book);

}  // namespace qor::calc
