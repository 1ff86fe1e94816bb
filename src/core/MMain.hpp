#pragma once

#include "automation/object.hpp"
#include "platform/settings_store.hpp"
#include "ui/screen.hpp"

namespace qor {

// The host's application while a command runs; nothing between commands, so nobody may hold on to it.
extern Object gExcel;

// What the add-in stands on besides the host.
struct Environment {
    Screen& screen;
    SettingsStore& settings;
};

// Handed in by the host before the first command; the last one holds.
void set_environment(const Environment& environment) noexcept;
const Environment& environment() noexcept;

}  // namespace qor
