#pragma once

#include <cstdint>

#include "hosts/calc/uno/ref.hpp"

namespace qor::support {

// While it lives, the host call of this number fails, counted from 1.
class FailingHostCall {
  public:
    explicit FailingHostCall(std::uint64_t number) { calc::failing_host_call = calc::host_calls + number; }
    FailingHostCall(const FailingHostCall&) = delete;
    FailingHostCall& operator=(const FailingHostCall&) = delete;
    ~FailingHostCall() { calc::failing_host_call = 0; }

    // Whether so many calls were made.
    bool happened() const { return calc::host_calls >= calc::failing_host_call; }
};

// Prepares, works with the first host call failing, and checks; then with the second, and so on until the work makes
// no more calls than that. Answers the number of failures. The check gets the error that the work raised, 0 for none.
template <class Prepare, class Work, class Check>
std::uint64_t fail_each_host_call(Prepare prepare, Work work, Check check) {
    for (std::uint64_t number = 1;; ++number) {
        prepare();
        std::int32_t error = 0;
        bool happened = false;
        {
            const FailingHostCall failing(number);
            error = attempt(work);
            happened = failing.happened();
        }
        check(error);
        if (!happened) return number - 1;
    }
}

}  // namespace qor::support
