#pragma once

#include <string>

#include "tests/calc/fixture.hpp"

namespace qor::calc::tests {

// The newest workbook's whole contents and looks, as the text that Calc stores them in.
std::string whole_document();

// What its undo list holds, and undone or redone once. Clearing also sees that no step is open.
std::vector<std::string> undo_titles();
void undo();
void redo();
void clear_undo();

}  // namespace qor::calc::tests
