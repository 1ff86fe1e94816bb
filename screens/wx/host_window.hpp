#pragma once

#include <wx/nativewin.h>
#include <wx/weakref.h>

#include <cstdint>

#include "screens/wx/native_window.hpp"

namespace qor::wx {

// The host's window as one of the toolkit's.
class HostWindow {
  public:
    explicit HostWindow(NativeWindow native) : native_(std::move(native)) {}
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow();

    // Null where the host has no window, or none of the toolkit's kind.
    wxWindow* window();

  private:
    NativeWindow native_;
    std::uintptr_t handle_ = 0;
    wxWeakRef<wxNativeContainerWindow> window_;  // goes with the native window
};

}  // namespace qor::wx
