#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// The caption that the window was given, else the workbook's name. Several windows of a workbook are numbered by their
// opening: "Name:1".
std::u16string caption_of(const Book& book, const Controller& window);

}  // namespace qor::calc
