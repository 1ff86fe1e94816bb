#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::bench {

using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;

// The menu and the toolbars, made and shown.
void register_menu(const Context& context);

// From the command to the painted dialog.
void register_dialogs(const Context& context);

}  // namespace qor::bench
