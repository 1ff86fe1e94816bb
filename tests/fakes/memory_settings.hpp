#pragma once

#include <map>

#include "platform/settings_store.hpp"

namespace qor::fakes {

// Settings in memory, by section and name.
class MemorySettings final : public SettingsStore {
  public:
    using Key = std::pair<std::u16string, std::u16string>;
    std::map<Key, std::u16string> values;

    std::optional<std::u16string> read(std::u16string_view section, std::u16string_view name) const override {
        const auto found = values.find(Key(section, name));
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    bool write(std::u16string_view section, std::u16string_view name, std::u16string_view value) override {
        values[Key(section, name)] = value;
        return true;
    }
    bool erase(std::u16string_view section, std::u16string_view name) override {
        return values.erase(Key(section, name)) > 0;
    }
    bool erase_section(std::u16string_view) override { return false; }
};

}  // namespace qor::fakes
