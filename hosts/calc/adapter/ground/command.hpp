#pragma once

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

// Runs a command of the office, such as ".uno:Paste", in the workbook's current window.
void run_command(const Book& book, const char* command, const PropertyValues& arguments = {});

}  // namespace qor::calc
