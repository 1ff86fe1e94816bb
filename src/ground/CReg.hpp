#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/settings_store.hpp"

namespace qor {

// The registry's root keys, with its numbers.
enum class RootKey : std::uint32_t {
    classes_root = 0x80000000,
    current_user = 0x80000001,
    local_machine = 0x80000002,
    users = 0x80000003,
};

// The way to the user's settings. Made at the moment of use, so that a saved option takes effect at its next reading.
// The store given is the current user's: under any other root key nothing is found and nothing is saved.
// A key "*" is the section's unnamed value. No member raises an error.
class CReg {
  public:
    explicit CReg(SettingsStore& store);

    // Writing trims blanks and ignores what is empty then.
    const std::u16string& Company() const { return company_; }
    void Company(std::u16string_view company);
    const std::u16string& Title() const { return title_; }
    void Title(std::u16string_view title);

    // The section's key below the root key, where the store is the registry.
    std::u16string SubKey(std::u16string_view section) const;

    // An empty value that exists is given, not the default.
    std::u16string GetSetting(RootKey root, std::u16string_view section, std::u16string_view key,
                              std::u16string_view default_value) const;
    bool SaveSetting(RootKey root, std::u16string_view section, std::u16string_view key, std::u16string_view value);

    // With an empty key, deletes the whole section, and that of the current user whatever the root.
    bool DeleteSetting(RootKey root, std::u16string_view section, std::u16string_view key);

  private:
    SettingsStore& store_;
    std::u16string company_;
    std::u16string title_;
};

}  // namespace qor
