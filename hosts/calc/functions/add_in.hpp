#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::calc {

// Calc's view of the worksheet functions: the service com.sun.star.sheet.AddIn. There is one for the process, made when
// Calc first meets a name that is none of its own functions; from then on it watches the documents that are loaded.
com::sun::star::uno::Reference<com::sun::star::uno::XInterface> function_add_in(
    const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::calc
