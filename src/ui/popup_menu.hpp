#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "ui/event.hpp"

namespace qor {

// A menu of commands that comes up over a control when the control is asked to show it.
class PopupMenu {
  public:
    struct Entry {
        std::u16string_view id;
        std::u16string_view caption;
        bool begins_group = false;  // a separator stands before it
    };
    struct Command {
        std::u16string id;
        std::u16string caption;
        bool begins_group;
        bool enabled;
    };

    PopupMenu(std::initializer_list<Entry> entries) {
        for (const Entry& entry : entries)
            commands_.push_back({std::u16string(entry.id), std::u16string(entry.caption), entry.begins_group, true});
    }

    const std::vector<Command>& commands() const noexcept { return commands_; }

    void set_enabled(std::u16string_view id, bool enabled) {
        const auto command = std::ranges::find(commands_, id, &Command::id);
        assert(command != commands_.end());
        command->enabled = enabled;
    }

    // What the user does. A disabled command stays silent.
    void choose(std::size_t place) const {
        const Command& command = commands_.at(place);
        if (command.enabled) on_command(command.id);
    }

    Event<std::u16string_view> on_command;

  private:
    std::vector<Command> commands_;
};

}  // namespace qor
