#pragma once

#include <utility>

#include "ground/MMain.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/memory_settings.hpp"

namespace qor::fakes {

// What the add-in stands on, and the host's application if it is to be there between commands, for as long as this
// lives. Then the add-in stands on what it did before, at the outermost on a screen and settings of nobody's, and there
// is no application.
class InPlace {
  public:
    explicit InPlace(const Environment& environment, Object application = {})
        : outer_(std::exchange(innermost(), this)), environment_(environment) {
        set_environment(environment_);
        gExcel = std::move(application);
    }
    InPlace(const InPlace&) = delete;
    InPlace& operator=(const InPlace&) = delete;
    ~InPlace() {
        gExcel = {};
        innermost() = outer_;
        set_environment(outer_ ? outer_->environment_ : nobodys());
    }

  private:
    static InPlace*& innermost() {
        static InPlace* place = nullptr;
        return place;
    }
    static const Environment& nobodys() {
        static FakeScreen screen;
        static MemorySettings settings;
        static const Environment environment{screen, settings};
        return environment;
    }

    InPlace* outer_;
    Environment environment_;
};

}  // namespace qor::fakes
