#include "platform/shell.hpp"

#include <windows.h>
// After windows.h, on which it stands.
#include <shellapi.h>

#include "platform/windows/system_text.hpp"

namespace qor {
namespace {

class WindowsShell final : public Shell {
  public:
    void open(std::u16string_view target) override {
        ShellExecuteW(nullptr, L"open", system_text(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    }
};

}  // namespace

Shell& system_shell() {
    static WindowsShell shell;
    return shell;
}

}  // namespace qor
