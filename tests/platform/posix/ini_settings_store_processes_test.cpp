#include <doctest/doctest.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <random>
#include <string>
#include <thread>

#include "platform/ini_settings_store.hpp"
#include "platform/posix/file_descriptor.hpp"
#include "platform/text.hpp"
#include "tests/platform/posix/child_process.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;

namespace {

std::u16string decimal(int number) {
    return from_utf8(std::to_string(number));
}

struct Fixture {
    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "settings.ini";
    IniSettingsStore store{file};
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "two processes that write at once lose nothing of each other") {
    constexpr int count = 500;
    const auto writer = [&](const std::u16string& prefix) {
        return [&, prefix] {
            for (int number = 0; number < count; ++number)
                if (!store.write(u"Options", prefix + decimal(number), decimal(number))) return 1;
            return 0;
        };
    };
    ChildProcess one(writer(u"one"));
    ChildProcess other(writer(u"other"));
    CHECK(one.wait() == 0);
    CHECK(other.wait() == 0);
    int found = 0;
    for (int number = 0; number < count; ++number)
        for (const auto* prefix : {u"one", u"other"})
            found += store.read(u"Options", prefix + decimal(number)) == decimal(number) ? 1 : 0;
    CHECK(found == 2 * count);
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});
}

TEST_CASE_FIXTURE(Fixture, "a writer that is killed leaves the old file or the new") {
    constexpr int kills = 100;
    std::mt19937 random(20260);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same moments at every run
    std::uniform_int_distribution<int> microseconds(0, 20000);
    REQUIRE(store.write(u"Options", u"constant", u"kept"));
    int last_written = 0;
    int killed = 0;
    for (int round = 0; round < kills; ++round) {
        std::array<int, 2> ends = {};
        REQUIRE(::pipe(ends.data()) == 0);
        const FileDescriptor reading(ends[0]);
        ChildProcess child([&] {
            for (int number = last_written + 1;; ++number) {
                if (!store.write(u"Options", u"counter", decimal(number))) return 1;
                if (::write(ends[1], &number, sizeof number) != sizeof number) return 2;
            }
        });
        ::close(ends[1]);
        int acknowledged = 0;
        REQUIRE(::read(reading.number(), &acknowledged, sizeof acknowledged) == sizeof acknowledged);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        child.kill(SIGKILL);
        killed += child.wait() == -SIGKILL ? 1 : 0;

        for (int number = 0; ::read(reading.number(), &number, sizeof number) == sizeof number;) acknowledged = number;
        const auto counter = store.read(u"Options", u"counter").value_or(u"0");
        last_written = std::stoi(to_utf8(counter));
        CAPTURE(round);
        CHECK(last_written >= acknowledged);
        CHECK(last_written <= acknowledged + 1);
        CHECK((store.read(u"Options", u"constant") == std::u16string(u"kept")));
    }
    CHECK(killed == kills);
    CHECK(last_written >= kills);
    CHECK(store.write(u"Options", u"counter", u"done"));
    CHECK(folder.names() == std::set<std::string>{"settings.ini", "settings.ini.lock"});
}
