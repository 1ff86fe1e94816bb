#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "screens/script/script_error.hpp"
#include "ui/screen.hpp"

namespace qor {

// A screen without a display. It plays a script on the forms that a command shows, and keeps what was shown.
class ScriptScreen final : public Screen {
  public:
    // What the next command is to meet: "forms", a list of actions for each form in the order in which they open, and
    // "answers", the texts of the buttons to press in message boxes; "ranges", "files", "folders" and "colors", what is
    // picked in dialogs of the host and the system. All may be absent. A form without actions, or one that is still
    // open after its last action, is cancelled, and so is a dialog for which nothing, or null, is left; a message
    // without an answer takes its default. Raises ScriptError where one has another shape.
    void begin_call(const nlohmann::json& call);

    // What was shown since begin_call: {"forms": [...], "messages": [...], "progress": [done, total]}, the progress as
    // it stood last, null where there was none. Raises ScriptError if the script held more than was asked for, unless
    // the command failed before it came to it.
    nlohmann::json end_call(bool command_failed = false);

    void show_modal(Form& form) override;
    void show_again(Form&) override {}
    void show_modeless(Form&, Form*) override {}
    void hide(Form&) override {}
    void unload(Form&) noexcept override {}
    void progress(Form& form, std::int32_t done, std::int32_t total) override;
    MessageAnswer message_box(const MessageBox& message) override;
    std::optional<std::u16string> pick_file(Form* owner, FileDialog& dialog) override;
    std::optional<std::u16string> pick_folder(Form* owner, const std::u16string& title) override;
    std::optional<std::int32_t> pick_color(Form* owner) override;
    // The next entry of "ranges": what the user points at in the host's own dialog.
    std::optional<std::u16string> pick_range() { return next_text("ranges"); }
    double twips_per_pixel() const override { return 15; }

  private:
    nlohmann::json forms_ = nlohmann::json::array();  // what the script holds
    nlohmann::json answers_ = nlohmann::json::array();
    nlohmann::json shown_forms_ = nlohmann::json::array();
    nlohmann::json messages_ = nlohmann::json::array();
    std::size_t asked_ = 0;  // how many answers were called for
    nlohmann::json progress_;
    // The next of what is picked, by the script's key; null when nothing is left.
    nlohmann::json next_pick(const std::string& key);
    std::optional<std::u16string> next_text(const std::string& key);

    nlohmann::json picks_ = nlohmann::json::object();  // by key, a list of those not picked yet
};

}  // namespace qor
