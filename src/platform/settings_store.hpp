#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qor {

// Where the user's options live: text values by section and name, UTF-16 as in the hosts.
// Sections nest by backslashes, empty parts are ignored; an empty section is the root of the store.
// An empty name is the section's unnamed value. Names are compared without regard to case, as the registry does.
// No member throws: what cannot be read is absent, what cannot be written answers false.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    virtual std::optional<std::u16string> read(std::u16string_view section, std::u16string_view name) const = 0;
    virtual bool write(std::u16string_view section, std::u16string_view name, std::u16string_view value) = 0;
    virtual bool erase(std::u16string_view section, std::u16string_view name) = 0;
    // False for a section that is absent or that holds nested sections.
    virtual bool erase_section(std::u16string_view section) = 0;
};

}  // namespace qor
