#pragma once

#include <filesystem>

#include "hosts/calc/adapter/ground/host_user.hpp"
#include "screens/script/script_screen.hpp"

namespace qor::calc {

// Answers what the host asks from the script that the screen plays. Relative paths start from the folder.
class ScriptedUser final : public HostUser {
  public:
    ScriptedUser(ScriptScreen& screen, std::filesystem::path folder) : screen_(screen), folder_(std::move(folder)) {}

    MessageAnswer message_box(const MessageBox& message) override { return screen_.message_box(message); }
    std::optional<std::u16string> file_to_save(FileDialog& dialog) override;
    std::optional<std::u16string> range(const RangeQuestion&) override { return screen_.pick_range(); }
    // There is nobody to show it to.
    bool show_page(const std::u16string&) override { return false; }

  private:
    ScriptScreen& screen_;
    std::filesystem::path folder_;
};

}  // namespace qor::calc
