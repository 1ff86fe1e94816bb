#pragma once

#include <functional>
#include <memory>

#include "screens/wx/native_window.hpp"
#include "ui/screen.hpp"

// What the library qorplus-screen gives to a host that loads it. Nothing here knows the toolkit.
namespace qor {

struct WindowedScreen {
    std::unique_ptr<Screen> screen;
    // Tells the dialogs that are open to close, as a cancelling user does; whether there were any.
    std::function<bool()> close_dialogs;
};

// The library's one function, called on the thread of all windows. What it raises says why there is no screen.
using MakeScreen = void(NativeWindow host_window, WindowedScreen& screen);
inline constexpr const char* make_screen_name = "qorplus_make_screen";

}  // namespace qor
