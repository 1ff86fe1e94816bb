#include "screens/wx/toolkit.hpp"

#include <wx/app.h>
#include <wx/init.h>

#include <array>
#include <stdexcept>

namespace qor::wx {
namespace {

class Application final : public wxApp {
  public:
    bool OnInit() override { return true; }
    // What a window raises while it paints itself must not end the host.
    bool OnExceptionInMainLoop() override { return true; }
};

bool start() {
    wxApp::SetInstance(new Application);
    static std::array<char, 8> name{"qorplus"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    int count = 1;
    if (!wxEntryStart(count, arguments.data())) return false;
    wxTheApp->SetExitOnFrameDelete(false);
    return wxTheApp->CallOnInit();
}

}  // namespace

void start_toolkit() {
    static const bool started = wxTheApp || start();
    if (!started) throw std::runtime_error("no display for windows");
}

}  // namespace qor::wx
