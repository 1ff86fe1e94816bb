#pragma once

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// Calc's view of the worksheet functions: the service com.sun.star.sheet.AddIn. There is one for the process, made when
// Calc first meets a name that is none of its own functions; from then on it watches the documents that are loaded.
css::uno::Reference<css::uno::XInterface> function_add_in(const Context& context);

}  // namespace qor::calc
