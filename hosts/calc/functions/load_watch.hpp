#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::calc {

// From now on the names of our functions are repaired in every document that is loaded.
void watch_loads(const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::calc
