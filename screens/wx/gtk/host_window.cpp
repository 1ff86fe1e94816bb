#include "screens/wx/host_window.hpp"

#include <wx/log.h>

#include <memory>

namespace qor::wx {

HostWindow::~HostWindow() {
    delete window_.get();
}

wxWindow* HostWindow::window() {
    const std::uintptr_t handle = native_ ? native_() : 0;
    if (handle != handle_ || !window_) {
        delete window_.get();
        handle_ = handle;
        if (handle == 0) return nullptr;
        const wxLogNull silent;
        auto window = std::make_unique<wxNativeContainerWindow>();
        if (window->Create(static_cast<wxNativeContainerWindowId>(handle))) window_ = window.release();
    }
    return window_.get();
}

}  // namespace qor::wx
