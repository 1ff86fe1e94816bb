#pragma once

#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// The names of the worksheet functions that Calc and Excel call differently. Any document will do.
FunctionNames function_names(const Document& any_document);

}  // namespace qor::calc
