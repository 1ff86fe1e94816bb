#pragma once

#include <string>
#include <string_view>

#include "platform/settings_store.hpp"

namespace qor {

// Settings below one key of the current user's registry, a key a section. Names are the registry's: they end at an
// embedded zero.
class RegistrySettingsStore final : public SettingsStore {
  public:
    explicit RegistrySettingsStore(std::u16string path);

    std::optional<std::u16string> read(std::u16string_view section, std::u16string_view name) const override;
    bool write(std::u16string_view section, std::u16string_view name, std::u16string_view value) override;
    bool erase(std::u16string_view section, std::u16string_view name) override;
    bool erase_section(std::u16string_view section) override;

  private:
    std::u16string path_of(std::u16string_view section) const;

    std::u16string path_;
};

}  // namespace qor
