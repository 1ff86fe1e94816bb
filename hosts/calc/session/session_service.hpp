#pragma once

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// The service com.ombrel.qorplus.Session, a com.sun.star.task.XJob that plays a script on the office that it runs in.
// execute() takes the script's JSON text as "Script", the folder that relative paths start from as "Folder", one for
// the run's own files as "TemporaryFolder", and as "HiddenName" the name of the folders beside files that are written.
// It gives a JSON text: {"transcript": ...}, or {"error": {"kind": "script" or "host", "message": ...}}.
css::uno::Reference<css::uno::XInterface> make_session_service(const Context& context);

}  // namespace qor::calc
