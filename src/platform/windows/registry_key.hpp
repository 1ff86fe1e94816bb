#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace qor {

// An open key of the registry, or none. No member throws.
class RegistryKey {
  public:
    static RegistryKey open(HKEY root, std::u16string_view path, REGSAM rights);
    // Makes the key, and those above it, if they are not there.
    static RegistryKey create(HKEY root, std::u16string_view path);

    RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept {
        std::swap(key_, other.key_);
        return *this;
    }
    ~RegistryKey() {
        if (key_) RegCloseKey(key_);
    }

    explicit operator bool() const { return key_ != nullptr; }
    HKEY get() const { return key_; }

    // An empty name is the key's unnamed value. Nothing for a value that is no text.
    std::optional<std::u16string> text(std::u16string_view name) const;
    bool set_text(std::u16string_view name, std::u16string_view value) const;

  private:
    explicit RegistryKey(HKEY key) : key_(key) {}

    HKEY key_;
};

}  // namespace qor
