#pragma once

#include <string>

namespace qor::calc {

// A number as Excel shows it for editing: 15 significant digits, and an exponent only for very large or small ones.
std::u16string number_text(double number);

}  // namespace qor::calc
