#pragma once

#include <cstdlib>

namespace qor::calc {

// LibreOffice starts with the sanitizer preloaded where our libraries are built with it. In gpg, which it starts when
// it stores, the sanitizer makes it wait forever.
inline void keep_sanitizer_in_this_process() noexcept {
#ifdef QOR_SANITIZER
    ::unsetenv("LD_PRELOAD");
#endif
}

}  // namespace qor::calc
