#pragma once

#include <chrono>
#include <cstdint>

namespace qor {

// How many cells a long job does at once: the more the cheaper, but not more than let the user hear of it ten times a
// second.
class Pace {
  public:
    Pace();

    // To be done before is_due is asked.
    std::int32_t cells() const noexcept { return cells_; }
    // Whether the user is to be told now. Between two times so much passes as an eye can see.
    bool is_due();

  private:
    using Time = std::chrono::steady_clock::time_point;

    std::int32_t cells_;
    Time done_;
    Time told_;
};

}  // namespace qor
