#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// With the numbers that Windows gives to its platforms.
enum class SystemPlatform : std::uint8_t { other = 0, windows_9x = 1, windows_nt = 2 };

struct SystemVersion {
    SystemPlatform platform = SystemPlatform::other;
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t build = 0;
};

// What the system tells about itself. Empty texts and zeros stand for what it does not tell; no member throws.
class SystemInformation {
  public:
    virtual ~SystemInformation() = default;

    virtual std::u16string user_name() const = 0;
    virtual std::u16string machine_name() const = 0;  // 15 characters at most, as machines are named in a network
    virtual SystemVersion version() const = 0;
    virtual std::u16string system_folder() const = 0;
    virtual std::u16string windows_folder() const = 0;
    // A text in the machine's part of the registry, where there is one.
    virtual std::optional<std::u16string> machine_setting(std::u16string_view key, std::u16string_view name) const = 0;
};

const SystemInformation& system_information();

}  // namespace qor
