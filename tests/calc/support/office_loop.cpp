#include "tests/calc/support/office_loop.hpp"

#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XToolkitExperimental.hpp>
#include <thread>

#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

void turn_loop_once() {
    css::uno::Reference<css::awt::XToolkitExperimental>(css::awt::Toolkit::create(office_context()),
                                                        css::uno::UNO_QUERY_THROW)
        ->processEventsToIdle();
}

}  // namespace

void let_office_work(std::chrono::milliseconds time) {
    const auto end = Clock::now() + time;
    constexpr int turns_at_least = 3;
    for (int turn = 0; turn < turns_at_least || Clock::now() < end; ++turn) {
        turn_loop_once();
        if (turn >= turns_at_least) std::this_thread::sleep_for(5ms);
    }
}

bool office_comes_to(const std::function<bool()>& condition) {
    const auto end = Clock::now() + 10s;
    while (!condition()) {
        if (Clock::now() > end) return false;
        turn_loop_once();
        std::this_thread::sleep_for(2ms);
    }
    return true;
}

}  // namespace qor::calc::tests
