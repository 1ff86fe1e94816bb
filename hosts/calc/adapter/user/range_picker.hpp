#pragma once

#include "hosts/calc/adapter/ground/host_user.hpp"
#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// Lets the user mark a range in the front workbook and waits until it is done. None when the user cancels, when there
// is no workbook, and in an office without a screen.
std::optional<std::u16string> pick_range(const Context& context, const RangeQuestion& question);

}  // namespace qor::calc
