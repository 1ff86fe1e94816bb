#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::calc {

// The service com.ombrel.qorplus.Companion, a com.sun.star.task.XJob that the office runs when its first window comes.
// From then on, until the office ends, the add-in is there for the user: its menu, its toolbars, its reactions.
com::sun::star::uno::Reference<com::sun::star::uno::XInterface> make_companion_service(
    const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::calc
