#pragma once

#include "hosts/calc/adapter/book.hpp"
#include "hosts/calc/adapter/file_formats.hpp"

namespace qor::calc {

Book add_book(const HostPointer& host);
// A workbook that is open already is only brought to the front. Raises 1004 naming the file when it is missing or
// cannot be read.
Book open_book(const HostPointer& host, const std::u16string& path, bool read_only);
// Both raise 1004 naming the file when it cannot be written.
void save_book(const Book& book);
void save_book_as(const Book& book, const std::u16string& path, std::optional<std::int32_t> format_number);
void close_book(const Book& book);

}  // namespace qor::calc
