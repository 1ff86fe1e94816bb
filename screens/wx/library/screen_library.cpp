#include "screens/wx/library/screen_library.hpp"

#include <wx/debug.h>

#include "screens/wx/toolkit.hpp"
#include "screens/wx/wx_screen.hpp"

extern "C" __attribute__((visibility("default"))) void qorplus_make_screen(qor::NativeWindow host_window,
                                                                           qor::WindowedScreen& made) {
    wxDisableAsserts();  // what the toolkit doubts is no question to the host's user
    qor::wx::start_toolkit();
    auto screen = std::make_unique<qor::WxScreen>(std::move(host_window));
    made.close_dialogs = [&windows = *screen] {
        const bool open = windows.dialog_open();
        windows.close_all();
        return open;
    };
    made.screen = std::move(screen);
}
