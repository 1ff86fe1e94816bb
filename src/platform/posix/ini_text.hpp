#pragma once

#include <string>
#include <string_view>

namespace qor {

// How any UTF-16 text is written in a settings file, which is UTF-8 and goes by lines. Ordinary text stays readable:
// only what the grammar would take for something else is escaped. What is no escape is read as it stands.

// Backslash escapes: \n \r \t \\, \s for a blank at either end, \uXXXX for other controls and lone surrogates.
std::string escape_value(std::u16string_view value);
std::u16string unescape_value(std::string_view line);

// Percent escapes: %XX for what the grammar forbids in names, %uXXXX for lone surrogates.
std::string escape_name(std::u16string_view name);
std::u16string unescape_name(std::string_view written);

}  // namespace qor
