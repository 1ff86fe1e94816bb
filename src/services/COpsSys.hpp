#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/system_information.hpp"

namespace qor {

// The machine and its system. No member raises an error: what the system does not tell is empty or 0.
class COpsSys {
  public:
    explicit COpsSys(const SystemInformation& system = system_information());

    std::u16string GetMachineUserName() const;
    std::u16string GetMachineName() const;
    std::u16string GetOrganization() const;
    std::u16string_view GetOSPlatform() const;  // of Windows only, up to Windows 2000
    std::int32_t GetOSMajorVersion() const { return version_.major; }
    std::int32_t GetOSMinorVersion() const { return version_.minor; }
    std::int32_t GetOSBuildVersion() const { return version_.build; }
    std::u16string GetWinSysDir() const;
    std::u16string GetWinDir() const;

  private:
    const SystemInformation& system_;
    SystemVersion version_;
};

}  // namespace qor
