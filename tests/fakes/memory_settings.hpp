#pragma once

#include <initializer_list>
#include <map>
#include <utility>

#include "platform/settings_store.hpp"

namespace qor::fakes {

// Settings in memory, by section and name as they are spelled.
class MemorySettings final : public SettingsStore {
  public:
    using Key = std::pair<std::u16string, std::u16string>;
    std::map<Key, std::u16string> values;

    // What the add-in's options are to it: the values of one section.
    static Key option_key(std::u16string_view name) { return Key(u"Options", name); }
    std::optional<std::u16string> option(std::u16string_view name) const { return read(u"Options", name); }
    void set_option(std::u16string_view name, std::u16string_view value) { values[option_key(name)] = value; }
    void set_options(std::initializer_list<std::pair<std::u16string_view, std::u16string_view>> options) {
        for (const auto& [name, value] : options) set_option(name, value);
    }

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
