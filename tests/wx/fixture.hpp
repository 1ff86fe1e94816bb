#pragma once

#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "screens/wx/layout.hpp"
#include "screens/wx/wx_screen.hpp"
#include "tests/window/display.hpp"
#include "tests/wx/every_kind.hpp"
#include "tests/wx/user.hpp"

namespace qor::wx {
const Layouts& test_layouts();
}

namespace qor::tests {

struct OnDisplay {
    OnDisplay() { use_virtual_display(); }
};

// The form with every kind of control, on the tests' own display.
struct EveryKind : OnDisplay {
    WxScreen screen{{}, wx::test_layouts()};
    frmEveryKind form{screen};
    CloseDialogs close = [this] { screen.close_all(); };

    void show(const std::function<void(User&)>& script) { tests::show(form, close, script); }
};

}  // namespace qor::tests
