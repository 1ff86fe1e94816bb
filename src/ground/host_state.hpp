#pragma once

#include "automation/member_name.hpp"

namespace qor {

// A switch of gExcel that is off for as long as this lives, and on afterwards whatever happened. Switching off raises
// what the host raises.
class SwitchedOff {
  public:
    explicit SwitchedOff(const MemberName& property);
    SwitchedOff(const SwitchedOff&) = delete;
    SwitchedOff& operator=(const SwitchedOff&) = delete;
    ~SwitchedOff();

  private:
    MemberName property_;
};

}  // namespace qor
