#pragma once

#include <cstdint>
#include <string_view>

namespace qor::calc {

// A kind of file: Excel's number for it and the filter of the office that reads and writes it.
struct FileFormat {
    std::u16string_view extension;  // in small letters, without the dot
    std::int32_t number;
    const char* filter;
    const char* options;  // of the filter; empty when it takes none
    bool first_sheet_only = false;
};

// Null when there is none.
const FileFormat* format_of_number(std::int32_t number);
const FileFormat* format_of_path(std::u16string_view path);
const FileFormat* format_of_filter(std::u16string_view filter, std::u16string_view options);

}  // namespace qor::calc
