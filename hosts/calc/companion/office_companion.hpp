#pragma once

#include <memory>
#include <optional>

#include "core/companion.hpp"
#include "hosts/calc/bars/office_faces.hpp"
#include "hosts/calc/companion/loaded_screen.hpp"
#include "hosts/calc/events/event_source.hpp"
#include "hosts/calc/uno/context.hpp"
#include "platform/ini_settings_store.hpp"

namespace qor::calc {

class Bars;

// The companion of the office that this library is loaded into: what it stands on, and what tells it. Everything here
// happens on the main thread.
class OfficeCompanion {
  public:
    explicit OfficeCompanion(const Context& context);
    OfficeCompanion(const OfficeCompanion&) = delete;
    OfficeCompanion& operator=(const OfficeCompanion&) = delete;

    void start();
    // The office asks whether it may end. Not while a dialog of ours is open: that is told to close, and then the
    // office is asked to end again.
    bool may_end();
    void stop();

  private:
    // Runs what the office or the user has set off; no failure gets out, and nothing else begins meanwhile.
    void run(const std::function<void()>& work);
    HostEvents handlers();
    void set_timers();

    Context context_;
    bool end_wanted_ = false;
    IniSettingsStore settings_;
    LoadedScreen screen_;
    OfficeFaces faces_;
    std::shared_ptr<Bars> bars_;
    Object application_;
    std::optional<Companion> companion_;
    std::unique_ptr<EventSource> events_;
    std::unique_ptr<RepeatingTimer> save_timer_;
    std::unique_ptr<RepeatingTimer> review_timer_;
};

}  // namespace qor::calc
