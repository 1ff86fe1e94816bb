#pragma once

#include <stdexcept>

namespace qor {

// The script does not fit what it is played on: the message, in UTF-8, names the thing and lists what there is.
// It is no host error, so nothing passes over it, and it ends the run.
class ScriptError final : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace qor
