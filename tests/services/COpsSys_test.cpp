#include <doctest/doctest.h>

#include <map>

#include "services/COpsSys.hpp"

using namespace qor;

namespace {

class FakeSystem final : public SystemInformation {
  public:
    SystemVersion told_version;
    std::map<std::u16string, std::u16string, std::less<>> organizations;  // by key

    std::u16string user_name() const override { return u"ann"; }
    std::u16string machine_name() const override { return u"LEDGER"; }
    SystemVersion version() const override { return told_version; }
    std::u16string system_folder() const override { return u"C:\\WINNT\\system32"; }
    std::u16string windows_folder() const override { return u"C:\\WINNT"; }
    std::optional<std::u16string> machine_setting(std::u16string_view key, std::u16string_view name) const override {
        const auto found = organizations.find(key);
        if (name != u"RegisteredOrganization" || found == organizations.end()) return std::nullopt;
        return found->second;
    }
};

std::u16string platform_of(SystemPlatform platform, std::int32_t major, std::int32_t minor) {
    FakeSystem system;
    system.told_version = {.platform = platform, .major = major, .minor = minor};
    return std::u16string(COpsSys(system).GetOSPlatform());
}

}  // namespace

TEST_CASE("the system's names, folders and numbers are handed on") {
    FakeSystem system;
    system.told_version = {.platform = SystemPlatform::windows_nt, .major = 5, .minor = 1, .build = 2195};
    const COpsSys information(system);
    CHECK(information.GetMachineUserName() == u"ann");
    CHECK(information.GetMachineName() == u"LEDGER");
    CHECK(information.GetWinSysDir() == u"C:\\WINNT\\system32");
    CHECK(information.GetWinDir() == u"C:\\WINNT");
    CHECK(information.GetOSMajorVersion() == 5);
    CHECK(information.GetOSMinorVersion() == 1);
    CHECK(information.GetOSBuildVersion() == 2195);
}

TEST_CASE("the version is that of the object's creation") {
    FakeSystem system;
    system.told_version.major = 5;
    const COpsSys information(system);
    system.told_version.major = 6;
    CHECK(information.GetOSMajorVersion() == 5);
}

TEST_CASE("a platform's name follows from its version") {
    CHECK(platform_of(SystemPlatform::windows_9x, 4, 0) == u"Windows 95");
    CHECK(platform_of(SystemPlatform::windows_9x, 4, 10) == u"Windows 98");
    CHECK(platform_of(SystemPlatform::windows_9x, 4, 90) == u"Windows 98");
    CHECK(platform_of(SystemPlatform::windows_9x, 3, 95).empty());
    CHECK(platform_of(SystemPlatform::windows_nt, 3, 51) == u"Windows NT");
    CHECK(platform_of(SystemPlatform::windows_nt, 4, 0) == u"Windows NT");
    CHECK(platform_of(SystemPlatform::windows_nt, 5, 0) == u"Windows 2000");
    CHECK(platform_of(SystemPlatform::windows_nt, 5, 1) == u"Windows 2000");
    CHECK(platform_of(SystemPlatform::windows_nt, 6, 0).empty());
    CHECK(platform_of(SystemPlatform::windows_nt, 10, 0).empty());
    CHECK(platform_of(SystemPlatform::other, 5, 15).empty());
}

TEST_CASE("the organization is where the platform keeps it, and later platforms are not asked") {
    FakeSystem system;
    system.organizations = {{u"Software\\Microsoft\\Windows\\CurrentVersion", u"Nine"},
                            {u"Software\\Microsoft\\Windows NT\\CurrentVersion", u"Enty"}};
    const auto organization = [&](SystemPlatform platform, std::int32_t major, std::int32_t minor) {
        system.told_version = {.platform = platform, .major = major, .minor = minor};
        return COpsSys(system).GetOrganization();
    };
    CHECK(organization(SystemPlatform::windows_9x, 4, 0) == u"Nine");
    CHECK(organization(SystemPlatform::windows_9x, 4, 10) == u"Nine");
    CHECK(organization(SystemPlatform::windows_nt, 4, 0) == u"Enty");
    CHECK(organization(SystemPlatform::windows_nt, 5, 0).empty());
    CHECK(organization(SystemPlatform::other, 6, 1).empty());
    system.organizations.clear();
    CHECK(organization(SystemPlatform::windows_nt, 4, 0).empty());
}

TEST_CASE("this machine has a user and a name") {
    const COpsSys information;
    CHECK_FALSE(information.GetMachineUserName().empty());
    CHECK_FALSE(information.GetMachineName().empty());
    CHECK(information.GetMachineName().size() <= 15);
    CHECK(information.GetOSMajorVersion() > 0);
}
