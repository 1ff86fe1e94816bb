#include "hosts/excel/screen/host_window.hpp"

#include <cstdint>

#include "automation/variant.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"

namespace qor::excel {

HWND host_window() noexcept {
    static const MemberName Hwnd{u"Hwnd"};
    std::intptr_t handle = 0;
    // Handles of windows have 32 bits that count, on every system.
    attempt([&] { handle = to_long(gExcel.get(Hwnd)); });
    const HWND told = reinterpret_cast<HWND>(handle);
    return IsWindow(told) ? told : GetActiveWindow();
}

}  // namespace qor::excel
