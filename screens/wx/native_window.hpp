#pragma once

#include <cstdint>
#include <functional>

namespace qor {

// The native handle of the window that dialogs are to stand over (X11: its id); 0 when there is none.
using NativeWindow = std::function<std::uintptr_t()>;

}  // namespace qor
