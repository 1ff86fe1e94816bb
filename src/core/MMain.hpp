#pragma once

#include "automation/object.hpp"
#include "platform/settings_store.hpp"
#include "ui/screen.hpp"

namespace qor {

// The host's application while a command runs; nothing between commands, so nobody may hold on to it.
extern Object gExcel;

// What the add-in stands on besides the host. Handed in once, before the first command; neither may be null.
struct Environment {
    Screen* screen = nullptr;
    SettingsStore* settings = nullptr;
};

const Environment& environment() noexcept;
// Answers the environment that it replaces.
Environment set_environment(const Environment& environment) noexcept;

}  // namespace qor
