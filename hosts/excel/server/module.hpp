#pragma once

#include <string>

#include "platform/windows/system.hpp"

namespace qor::excel {

// The server's library as it lies in the process, and on the disk.
HINSTANCE module() noexcept;
std::wstring module_path();

}  // namespace qor::excel
