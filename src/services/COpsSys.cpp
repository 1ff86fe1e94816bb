#include "services/COpsSys.hpp"

#include <algorithm>
#include <array>

namespace qor {
namespace {

constexpr std::u16string_view windows_95 = u"Windows 95";
constexpr std::u16string_view windows_98 = u"Windows 98";
constexpr std::u16string_view windows_nt = u"Windows NT";
constexpr std::u16string_view windows_2000 = u"Windows 2000";

struct OrganizationKey {
    std::u16string_view platform;
    std::u16string_view key;
};

// Later systems are not asked.
constexpr std::array organization_keys{
    OrganizationKey{windows_95, u"Software\\Microsoft\\Windows\\CurrentVersion"},
    OrganizationKey{windows_98, u"Software\\Microsoft\\Windows\\CurrentVersion"},
    OrganizationKey{windows_nt, u"Software\\Microsoft\\Windows NT\\CurrentVersion"},
};

}  // namespace

COpsSys::COpsSys(const SystemInformation& system) : system_(system), version_(system.version()) {}

std::u16string COpsSys::GetMachineUserName() const {
    return system_.user_name();
}
std::u16string COpsSys::GetMachineName() const {
    return system_.machine_name();
}

std::u16string COpsSys::GetOrganization() const {
    const auto* const row = std::ranges::find(organization_keys, GetOSPlatform(), &OrganizationKey::platform);
    if (row == organization_keys.end()) return {};
    return system_.machine_setting(row->key, u"RegisteredOrganization").value_or(std::u16string());
}

std::u16string_view COpsSys::GetOSPlatform() const {
    const bool is_nt = version_.platform == SystemPlatform::windows_nt;
    if (is_nt && version_.major < 5) return windows_nt;
    if (is_nt && version_.major == 5) return windows_2000;
    if (version_.platform != SystemPlatform::windows_9x || version_.major != 4) return {};
    return version_.minor == 0 ? windows_95 : windows_98;
}

std::u16string COpsSys::GetWinSysDir() const {
    return system_.system_folder();
}
std::u16string COpsSys::GetWinDir() const {
    return system_.windows_folder();
}

}  // namespace qor
