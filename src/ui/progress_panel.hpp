#pragma once

#include "ui/control.hpp"

namespace qor {

// A panel that is flooded from its left edge as a job goes on.
class ProgressPanel final : public Control {
  public:
    using Control::Control;

    int flood_percent() const noexcept { return flood_percent_; }
    void set_flood_percent(int percent) { assign(flood_percent_, percent); }

  private:
    int flood_percent_ = 0;
};

}  // namespace qor
