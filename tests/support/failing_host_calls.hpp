#pragma once

#include "hosts/calc/uno/ref.hpp"
#include "tests/support/fail_each.hpp"

namespace qor::support {

// While it lives, the call into the office of this number fails, counted from 1.
class FailingHostCall {
  public:
    explicit FailingHostCall(std::uint64_t number) { calc::failing_host_call = calc::host_calls + number; }
    FailingHostCall(const FailingHostCall&) = delete;
    FailingHostCall& operator=(const FailingHostCall&) = delete;
    ~FailingHostCall() { calc::failing_host_call = 0; }

    // Whether so many calls were made.
    bool happened() const { return calc::host_calls >= calc::failing_host_call; }
};

// As fail_each, over the calls into the office.
template <class Prepare, class Work, class Check>
std::uint64_t fail_each_host_call(Prepare prepare, Work work, Check check) {
    return fail_each([](std::uint64_t number) { return FailingHostCall(number); }, prepare, work, check);
}

}  // namespace qor::support
