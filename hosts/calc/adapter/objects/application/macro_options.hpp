#pragma once

#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// Excel learns a function's description, category and help by this call, the office by the add-in's own tables. So it
// is only checked whether there is such a worksheet function: raises 1004 when there is none.
void require_macro(const Host& host, std::u16string_view name);

}  // namespace qor::calc
