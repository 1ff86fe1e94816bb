#pragma once

#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "screens/wx/layout.hpp"
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

    void show(const std::function<void(User&)>& script) { tests::show(form, screen, script); }
};

}  // namespace qor::tests
