#pragma once

#include <string_view>

namespace qor::calc {

// Whether a formula in Calc's notation, with its equals sign, gives a Boolean whatever the cells hold: a comparison, or
// a function that tests. A choice such as IF is none, because what it gives hangs on the cells.
bool gives_boolean(std::u16string_view formula);

}  // namespace qor::calc
