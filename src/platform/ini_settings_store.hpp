#pragma once

#include <filesystem>
#include <string_view>

#include "platform/settings_store.hpp"

namespace qor {

// Settings in one UTF-8 text file, a group a section, that a user can read and edit; comments stay.
// Every change is read, made and written under a lock, so processes that share the file lose nothing of each other.
// A file that is no such text reads as empty and is kept as NAME.bad when the next value is written.
// One that cannot be read at all is left alone, and writing answers false.
class IniSettingsStore final : public SettingsStore {
  public:
    // The file and its folders are made when the first value is written.
    explicit IniSettingsStore(std::filesystem::path file);

    std::optional<std::u16string> read(std::u16string_view section, std::u16string_view name) const override;
    bool write(std::u16string_view section, std::u16string_view name, std::u16string_view value) override;
    bool erase(std::u16string_view section, std::u16string_view name) override;
    bool erase_section(std::u16string_view section) override;

  private:
    std::filesystem::path file_;
};

}  // namespace qor
