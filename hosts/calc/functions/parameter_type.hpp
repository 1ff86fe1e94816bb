#pragma once

#include "functions/function.hpp"

namespace qor::calc {

// Whether Calc itself makes the number of an argument. It then treats the argument as it does those of its own
// functions: a range gives the cell that lies in line with the formula, or one value after the other in an array
// formula, and a text that is no number is #VALUE!. Whatever can be left out must come as it is.
inline bool is_plain_number(const Parameter& parameter) noexcept {
    const bool number = parameter.kind == ValueKind::number || parameter.kind == ValueKind::whole_number;
    return number && !parameter.is_optional() && !parameter.is_by_reference;
}

}  // namespace qor::calc
