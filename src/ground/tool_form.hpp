#pragma once

#include "ground/MMain.hpp"
#include "ui/form.hpp"

namespace qor {

// What every form of a tool offers to the command that shows it.
class ToolForm : public Form {
  public:
    explicit ToolForm(std::u16string_view name) : Form(name, environment().screen) {}

    std::u16string AppTitle;  // the window's caption, and the title of the form's message boxes
    std::u16string HelpFile;
    std::int32_t HelpFileId = 0;

    std::u16string_view caption() const noexcept final { return AppTitle; }
    std::int32_t help_id() const noexcept final { return HelpFileId; }

    // What the Help button does.
    void show_help() const;
};

}  // namespace qor
