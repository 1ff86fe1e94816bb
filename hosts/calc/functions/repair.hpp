#pragma once

#include "hosts/calc/uno/document.hpp"

namespace qor::calc {

// Files of other programs may name our functions without the prefix by which Calc knows an add-in's functions: their
// formulas show the stored result until they are computed again, and then #NAME?. Enters such formulas again, in every
// sheet of the document. Neither the undo list nor the modified state tells of it.
void repair_function_names(const Document& document);

}  // namespace qor::calc
