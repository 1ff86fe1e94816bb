#pragma once

#include <stdexcept>

namespace qor::cli {

// What the user asked for cannot be done as asked. The message is one line of UTF-8 that says what to do instead.
class UsageError final : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace qor::cli
