#include "tests/window/display.hpp"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "tests/batch/virtual_display.hpp"

namespace qor::tests {
namespace {

bool has_window_manager() {
    return std::system("xdotool getactivewindow >/dev/null 2>&1 || xdotool get_num_desktops >/dev/null 2>&1") == 0;
}

void wait_for_window_manager() {
    constexpr int attempts = 200;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (has_window_manager()) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    throw std::runtime_error("the window manager did not start");
}

}  // namespace

void use_virtual_display() {
    static const calc::VirtualDisplay display;
    static const bool ready = [] {
        ::setenv("GDK_BACKEND", "x11", 1);
        ::setenv("NO_AT_BRIDGE", "1", 1);            // no bus to talk to screen readers
        ::setenv("GSETTINGS_BACKEND", "memory", 1);  // no bus for the desktop's settings: its end would end us
        wait_for_window_manager();
        return true;
    }();
    static_cast<void>(ready);
}

}  // namespace qor::tests
