#pragma once

#include <string_view>

namespace qor {

// The user's programs for pages, mails and files.
class Shell {
  public:
    virtual ~Shell() = default;

    // Hands the address or path to the program for it, without waiting for it. Whether there is one stays unsaid.
    virtual void open(std::u16string_view target) = 0;
};

Shell& system_shell();

}  // namespace qor
