#pragma once

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/formula/reference_style.hpp"

namespace qor::calc {

// How the user sees references in formulas.
ReferenceStyle reference_style(const Host& host);
void set_reference_style(const Host& host, ReferenceStyle style);

}  // namespace qor::calc
