#pragma once

#include "platform/windows/system.hpp"

namespace qor::excel {

// The window that dialogs and messages stand over: that of the host's application, as it tells it, or the one that is
// active in this thread. Null if there is neither.
HWND host_window() noexcept;

}  // namespace qor::excel
