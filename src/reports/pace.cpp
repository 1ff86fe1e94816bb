#include "reports/pace.hpp"

#include <algorithm>
#include <utility>

#include "runtime/clock.hpp"

namespace qor {
namespace {

using namespace std::chrono_literals;

// Each turn has its own costs, so that fewer would make the job slower for all.
constexpr std::int32_t fewest_cells = 1024;
constexpr std::int32_t most_cells = 4096;

// What takes up to this is told at the first or the second time, and so within a tenth of a second.
constexpr auto between_two_times = 50ms;
constexpr auto too_long = 90ms;
constexpr auto too_short = 40ms;

}  // namespace

Pace::Pace() : cells_(fewest_cells), done_(running_clock()()), told_(done_) {}

bool Pace::is_due() {
    const Time now = running_clock()();
    const auto took = now - std::exchange(done_, now);
    if (took > too_long) cells_ = std::max(fewest_cells, cells_ / 2);
    if (took < too_short) cells_ = std::min(most_cells, cells_ * 2);
    if (now - told_ < between_two_times) return false;
    told_ = now;
    return true;
}

}  // namespace qor
