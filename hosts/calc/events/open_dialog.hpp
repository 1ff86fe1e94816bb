#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::calc {

// Whether a dialog of the office waits for the user's answer.
bool is_dialog_open(const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::calc
