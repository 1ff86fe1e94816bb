#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "automation/object.hpp"

namespace qor {

// What the automation object needs of the one who created it: it hears of the host's events and of the user's clicks
// and calls the members that answer them. It lives on the host's main thread, and whoever drives it calls it neither
// while a command runs nor while a dialog is open.
class Companion {
  public:
    struct Host {
        Object application;
        // Runs a command as one step that the user can undo under that title.
        std::function<void(std::u16string_view title, const std::function<void()>& command)> undo_step;
        // Tells the user why a command failed.
        std::function<void(const Error& error)> report;
    };
    struct Places {
        std::u16string data_folder;  // without a separator at its end
        std::u16string help_file;
    };

    Companion(Object com, Host host);

    // At the host's start and end. A second call of stop does nothing.
    void start(const Places& places);
    void stop();
    // Keeps where the user has put the toolbars; menu and toolbars stay.
    void save_menu_places();

    // The macro that a control of the menu or of a toolbar names. Case does not matter, and an unknown one does
    // nothing.
    void run_macro(std::u16string_view macro);

    void workbook_opened(const std::u16string& name);
    void workbook_created();
    void workbook_to_be_saved(const std::u16string& name);
    void workbook_saved_as();
    void selection_changed(const std::u16string& worksheet, const std::u16string& address);

    // The jobs that are called by time. Each says how often, or nothing while the user has switched it off; the answer
    // may be another one after every command.
    using Interval = std::optional<std::chrono::minutes>;
    Interval save_interval() const;
    Interval review_interval() const;
    void save_by_time();
    void review_by_time();

  private:
    // Calls a member that answers an event. Its failure is nobody's concern: the user has asked for nothing.
    template <class... Arguments>
    void react(const MemberName& member, Arguments&&... arguments);

    Object com_;
    Host host_;
    bool started_ = false;
};

}  // namespace qor
