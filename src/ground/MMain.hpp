#pragma once

#include "automation/object.hpp"
#include "platform/face_clipboard.hpp"
#include "platform/settings_store.hpp"
#include "platform/shell.hpp"
#include "ui/screen.hpp"

namespace qor {

// The host's application while a command runs; nothing between commands, so nobody may hold on to it.
extern Object gExcel;

// For a host without buttons: every face raises 326.
FaceClipboard& no_faces() noexcept;

// What the add-in stands on besides the host.
struct Environment {
    Screen& screen;
    SettingsStore& settings;
    FaceClipboard& faces = no_faces();
    Shell& shell = system_shell();
};

// Handed in by the host before the first command; the last one holds.
void set_environment(const Environment& environment) noexcept;
const Environment& environment() noexcept;

}  // namespace qor
