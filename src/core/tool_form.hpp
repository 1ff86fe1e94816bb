#pragma once

#include "core/MMain.hpp"
#include "ui/form.hpp"

namespace qor {

// What every form of a tool offers to the command that shows it.
class ToolForm : public Form {
  public:
    explicit ToolForm(std::u16string_view name) : Form(name, *environment().screen) {}

    // The caption of the window, and the title of the form's message boxes.
    const std::u16string& AppTitle() const noexcept { return caption(); }
    void AppTitle(std::u16string title) { set_caption(std::move(title)); }

    std::u16string HelpFile;
    std::int32_t HelpFileId = 0;

    std::int32_t help_id() const noexcept final { return HelpFileId; }

    // What the Help button does.
    void show_help() const;
};

}  // namespace qor
