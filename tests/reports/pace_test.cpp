#include "reports/pace.hpp"

#include <doctest/doctest.h>

#include <algorithm>

#include "runtime/clock.hpp"

using namespace qor;
using namespace std::chrono_literals;

namespace {

using Time = std::chrono::steady_clock::time_point;

// A clock that goes on only when the test says so.
struct ToldClock {
    Time time;
    std::function<Time()> real_clock = running_clock();

    ToldClock() {
        running_clock() = [this] { return time; };
    }
    ~ToldClock() { running_clock() = real_clock; }
    ToldClock(const ToldClock&) = delete;
    ToldClock& operator=(const ToldClock&) = delete;
};

struct Told {
    int times = 0;
    std::chrono::nanoseconds longest_silence{};
};

// What the user hears of so many cells, each of which takes so long.
Told hear(std::int32_t cells, std::chrono::nanoseconds of_each) {
    ToldClock clock;
    Pace pace;
    Told told;
    Time before = clock.time;
    while (cells > 0) {
        cells -= pace.cells();
        clock.time += of_each * pace.cells();
        if (!pace.is_due()) continue;
        ++told.times;
        told.longest_silence = std::max<std::chrono::nanoseconds>(told.longest_silence, clock.time - before);
        before = clock.time;
    }
    return told;
}

}  // namespace

TEST_CASE("the user hears of a job at least ten times a second, and no more often than every twentieth") {
    const std::chrono::nanoseconds speeds[] = {100ns, 700ns, 5us, 17us, 29us, 60us, 95us};
    for (const std::chrono::nanoseconds of_each : speeds) {
        CAPTURE(of_each.count());
        const auto cells = static_cast<std::int32_t>(10s / of_each);
        const Told told = hear(cells, of_each);
        CHECK(told.longest_silence <= 100ms);
        CHECK(told.times >= 99);
        CHECK(told.times <= 201);
    }
}

TEST_CASE("a quick host is asked for more cells at once, and for fewer when it is slow again") {
    ToldClock clock;
    Pace pace;
    CHECK(pace.cells() == 1024);
    for (const std::int32_t cells : {2048, 4096, 4096}) {
        clock.time += 10ms;
        CHECK_FALSE(pace.is_due());
        CHECK(pace.cells() == cells);
    }
    for (const std::int32_t cells : {2048, 1024, 1024}) {
        clock.time += 1s;
        CHECK(pace.is_due());
        CHECK(pace.cells() == cells);
    }
    clock.time += 60ms;
    CHECK(pace.is_due());
    CHECK(pace.cells() == 1024);
}

TEST_CASE("a job that takes no time is not told of") {
    ToldClock clock;
    Pace pace;
    for (int block = 0; block < 1000; ++block) CHECK_FALSE(pace.is_due());
}
