#pragma once

#include <string>
#include <string_view>

#include "automation/variant.hpp"

namespace qor::cli {

// A value as it is written on the command line: a number, TRUE, FALSE, omitted, date:YYYY-MM-DD[THH:MM:SS], text:...,
// and whatever else as the text that it is. Raises UsageError for a date that is none.
Variant parse_value(std::string_view text);

// What parse_value reads as that value.
std::string write_value(const Variant& value);

// The value for a person: texts and dates as they are. Numbers have as many digits as tell them from every
// other number. Empty for a value that is empty; in a rectangle a line is a row and a tab parts its cells.
std::string show_value(const Variant& value);

}  // namespace qor::cli
