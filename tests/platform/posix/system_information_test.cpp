#include "platform/system_information.hpp"

#include <doctest/doctest.h>
#include <pwd.h>
#include <unistd.h>

#include <string>

#include "platform/text.hpp"

using namespace qor;

TEST_CASE("the user is the one that the process runs for") {
    const passwd* const user = ::getpwuid(::geteuid());
    REQUIRE(user != nullptr);
    CHECK(to_utf8(system_information().user_name()) == user->pw_name);
}

TEST_CASE("the machine's name is the beginning of its host's") {
    std::string host(256, '\0');
    REQUIRE(::gethostname(host.data(), host.size()) == 0);
    host.resize(host.find('\0'));
    CHECK(to_utf8(system_information().machine_name()) == host.substr(0, 15));
}

TEST_CASE("a system without Windows has its version and no more") {
    const SystemInformation& system = system_information();
    CHECK(system.version().platform == SystemPlatform::other);
    CHECK(system.version().major > 0);
    CHECK(system.system_folder().empty());
    CHECK(system.windows_folder().empty());
    CHECK_FALSE(system.machine_setting(u"Software\\Microsoft\\Windows NT\\CurrentVersion", u"RegisteredOrganization"));
}
