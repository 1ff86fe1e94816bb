#include "platform/system_information.hpp"

#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <array>
#include <cstdio>

#include "platform/text.hpp"

namespace qor {
namespace {

constexpr std::size_t longest_machine_name = 15;

class PosixSystemInformation final : public SystemInformation {
  public:
    std::u16string user_name() const override {
        passwd entry{};
        passwd* found = nullptr;
        std::array<char, 16384> text{};
        ::getpwuid_r(::geteuid(), &entry, text.data(), text.size(), &found);
        return found ? from_utf8(found->pw_name) : std::u16string();
    }

    std::u16string machine_name() const override {
        utsname system{};
        if (::uname(&system) != 0) return {};
        return from_utf8(system.nodename).substr(0, longest_machine_name);
    }

    SystemVersion version() const override {
        utsname system{};
        SystemVersion version;
        if (::uname(&system) != 0) return version;
        // "6.1.0-18-amd64"; what is missing stays 0.
        std::sscanf(system.release, "%d.%d.%d", &version.major, &version.minor, &version.build);
        return version;
    }

    std::u16string system_folder() const override { return {}; }
    std::u16string windows_folder() const override { return {}; }

    std::optional<std::u16string> machine_setting(std::u16string_view, std::u16string_view) const override {
        return std::nullopt;
    }
};

}  // namespace

const SystemInformation& system_information() {
    static const PosixSystemInformation information;
    return information;
}

}  // namespace qor
