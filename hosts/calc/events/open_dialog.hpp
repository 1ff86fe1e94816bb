#pragma once

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// Whether a dialog of the office waits for the user's answer.
bool is_dialog_open(const Context& context);

}  // namespace qor::calc
