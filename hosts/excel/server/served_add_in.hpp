#pragma once

#include "hosts/excel/com/served_object.hpp"

namespace qor::excel {

// Makes a CCom as the host sees it. With the first one come the settings, the screen and the rest of what the core
// stands on.
ComPointer<IDispatch> make_add_in();

}  // namespace qor::excel
