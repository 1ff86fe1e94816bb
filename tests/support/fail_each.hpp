#pragma once

#include <doctest/doctest.h>

#include <cstdint>

#include "automation/error.hpp"

namespace qor::support {

// Prepares, works with the first call failing, and checks; then with the second, and so on until the work makes no more
// calls than that: the last time nothing fails. Answers the number of failures, which it also prints. `failing` makes
// from a number, counted from 1, what lets that call fail while it lives and tells whether it happened. The check gets
// the number of the error that the work raised, 0 for none.
template <class Failing, class Prepare, class Work, class Check>
std::uint64_t fail_each(Failing failing, Prepare prepare, Work work, Check check) {
    for (std::uint64_t number = 1;; ++number) {
        CAPTURE(number);
        prepare();
        std::int32_t error = 0;
        bool happened = false;
        {
            const auto failure = failing(number);
            error = attempt(work);
            happened = failure.happened();
        }
        check(error);
        if (happened) continue;
        const std::uint64_t failures = number - 1;
        MESSAGE(failures << " calls, each of which failed once");
        CHECK(failures > 0);
        return failures;
    }
}

}  // namespace qor::support
