#pragma once

#include <string>
#include <string_view>

namespace qor::calc {

// The absolute path that a text means, with either separator; relative ones start from the current folder.
std::u16string full_path(const std::u16string& path);
std::u16string file_name_of(std::u16string_view path);

// Raises 1004: the path in quotes and the reason.
[[noreturn]] void refuse_file(std::u16string_view path, std::u16string_view reason);

}  // namespace qor::calc
