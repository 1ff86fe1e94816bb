#pragma once

#include "platform/ini_settings_store.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::test {

// The system's settings store with nothing in it.
struct FreshStore {
    TemporaryFolder folder;
    IniSettingsStore store{folder.path / "settings.ini"};
    IniSettingsStore another{folder.path / "settings.ini"};  // of the same settings
};

}  // namespace qor::test
