#pragma once

#include <com/sun/star/uno/XInterface.hpp>

namespace qor::calc {

// Calc's view of the worksheet functions: the service com.sun.star.sheet.AddIn. There is one for the process.
com::sun::star::uno::Reference<com::sun::star::uno::XInterface> function_add_in();

}  // namespace qor::calc
