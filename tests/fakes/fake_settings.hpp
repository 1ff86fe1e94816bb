#pragma once

#include <functional>
#include <map>

#include "platform/settings_store.hpp"

namespace qor::fakes {

// Options by name, whatever the section. Takes no writing.
class FakeSettings final : public SettingsStore {
  public:
    std::map<std::u16string, std::u16string, std::less<>> options;

    std::optional<std::u16string> read(std::u16string_view, std::u16string_view name) const override {
        const auto place = options.find(name);
        return place == options.end() ? std::nullopt : std::optional(place->second);
    }
    bool write(std::u16string_view, std::u16string_view, std::u16string_view) override { return false; }
    bool erase(std::u16string_view, std::u16string_view) override { return false; }
    bool erase_section(std::u16string_view) override { return false; }
};

}  // namespace qor::fakes
