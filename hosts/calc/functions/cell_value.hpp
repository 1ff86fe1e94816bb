#pragma once

#include <uno/any2.h>

#include "automation/variant.hpp"

namespace qor::calc {

// An argument as Calc gives it: a number, a text, a rectangle of both, or nothing where it was left out. A rectangle
// of one cell is that cell; a larger one is no single value and raises 13.
Variant argument_from_cell(const uno_Any& argument);

// The value for the cell, constructed in `result`. A truth value is the number that Calc shows as TRUE or FALSE.
void result_to_cell(const Variant& value, uno_Any& result) noexcept;

// #VALUE! for the cell, constructed in `result`.
void error_to_cell(uno_Any& result) noexcept;

}  // namespace qor::calc
