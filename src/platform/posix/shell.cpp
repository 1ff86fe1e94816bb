#include "platform/shell.hpp"

#include <glib.h>

#include <array>
#include <string>

#include "platform/text.hpp"

namespace qor {
namespace {

class DesktopShell final : public Shell {
  public:
    void open(std::u16string_view target) override {
        std::string program = "xdg-open";
        std::string argument = to_utf8(target);
        std::array<char*, 3> arguments{program.data(), argument.data(), nullptr};
        // Started through a process that ends at once, so nobody has to wait for the program's end.
        g_spawn_async(
            nullptr, arguments.data(), nullptr,
            static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL),
            nullptr, nullptr, nullptr, nullptr);
    }
};

}  // namespace

Shell& system_shell() {
    static DesktopShell shell;
    return shell;
}

}  // namespace qor
