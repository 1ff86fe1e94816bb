#include "platform/system_information.hpp"

#include <doctest/doctest.h>

using namespace qor;

TEST_CASE("system: the version, the folders and the names are those that the system tells") {
    const SystemInformation& system = system_information();
    CHECK(system.version().platform == SystemPlatform::windows_nt);
    CHECK(system.version().major >= 5);
    CHECK(system.version().build > 0);
    CHECK(system.windows_folder() == u"C:\\windows");
    CHECK(system.system_folder() == u"C:\\windows\\system32");
    CHECK_FALSE(system.user_name().empty());
    CHECK_FALSE(system.machine_name().empty());
    CHECK(system.machine_name().size() <= 15);
}

TEST_CASE("system: a machine's setting is a text of its registry") {
    const SystemInformation& system = system_information();
    constexpr std::u16string_view key = u"Software\\Microsoft\\Windows NT\\CurrentVersion";
    const auto version = system.machine_setting(key, u"CurrentVersion");
    REQUIRE(version);
    CHECK_FALSE(version->empty());
    CHECK_FALSE(system.machine_setting(key, u"no such value"));
    CHECK_FALSE(system.machine_setting(u"Software\\no such key", u""));
    CHECK_FALSE(system.machine_setting(key, u"InstallDate"));
}
