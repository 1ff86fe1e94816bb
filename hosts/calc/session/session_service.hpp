#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

namespace qor::calc {

// The service com.ombrel.qorplus.Session, a com.sun.star.task.XJob that plays a script on the office that it runs in.
// execute() takes the script's JSON text as "Script", the folder that relative paths start from as "Folder", one for
// the run's own files as "TemporaryFolder", and as "HiddenName" the name of the folders beside files that are written.
// It gives a JSON text: {"transcript": ...}, or {"error": {"kind": "script" or "host", "message": ...}}.
com::sun::star::uno::Reference<com::sun::star::uno::XInterface> make_session_service(
    const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::calc
