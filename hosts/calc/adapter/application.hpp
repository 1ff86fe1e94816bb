#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

#include "automation/object.hpp"

namespace qor::calc {

// Excel's Application, answered from the office of this process. It and all that comes from it may be used on the
// office's main thread only.
Object make_application(const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::calc
