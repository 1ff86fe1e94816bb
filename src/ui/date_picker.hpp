#pragma once

#include "automation/variant.hpp"
#include "ui/control.hpp"

namespace qor {

// A day that is picked from a calendar.
class DatePicker final : public Control {
  public:
    DatePicker(Form& form, std::u16string name, Date day) : Control(form, std::move(name)), day_(day) {}

    Date day() const noexcept { return day_; }
    void set_day(Date day) {
        if (assign(day_, day)) on_change();
    }

    Event<> on_change;

  private:
    Date day_;
};

}  // namespace qor
