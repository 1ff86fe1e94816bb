#pragma once

#include <uno/any2.h>

#include "functions/function.hpp"

namespace qor::calc {

// An argument as Calc gives it: a number, a text, a rectangle of both, or nothing where it was left out. A rectangle
// of one cell is that cell; a larger one is no single value and raises 13. Calc hands over a blank cell as 0 or, in a
// rectangle, as the empty text: where a text is wanted 0 is Empty, and in a rectangle the empty text always is.
Variant argument_from_cell(const uno_Any& argument, ValueKind wanted);

// The value for the cell, constructed in `result`: a number or a text. A truth value is the number that Calc shows as
// TRUE or FALSE, and what a cell has no value for is 0.
void result_to_cell(const Variant& value, uno_Any& result) noexcept;

}  // namespace qor::calc
