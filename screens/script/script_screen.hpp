#pragma once

#include <nlohmann/json.hpp>

#include "screens/script/script_error.hpp"
#include "ui/screen.hpp"

namespace qor {

// A screen without a display. It plays a script on the forms that a command shows, and keeps what was shown.
class ScriptScreen final : public Screen {
  public:
    // What the next command is to meet: "forms", a list of actions for each form in the order in which they open, and
    // "answers", the texts of the buttons to press in message boxes; "ranges" and "files", what is picked where a form
    // lets the user pick. All may be absent. A form without actions, or one that is still open after its last action,
    // is cancelled; a message without an answer takes its default. Raises ScriptError where one has another shape.
    void begin_call(const nlohmann::json& call);

    // What was shown since begin_call: {"forms": [...], "messages": [...], "progress": [done, total]}, the progress as
    // it stood last, null where there was none. Raises ScriptError if the script held more than was asked for, unless
    // the command failed before it came to it.
    nlohmann::json end_call(bool command_failed = false);

    void show_modal(Form& form) override;
    void show_modeless(Form&, Form*) override {}
    void hide(Form&) override {}
    void unload(Form&) noexcept override {}
    void progress(Form& form, std::int32_t done, std::int32_t total) override;
    MessageAnswer message_box(const MessageBox& message) override;
    double twips_per_pixel() const override { return 15; }

  private:
    nlohmann::json forms_ = nlohmann::json::array();  // what the script holds
    nlohmann::json answers_ = nlohmann::json::array();
    nlohmann::json shown_forms_ = nlohmann::json::array();
    nlohmann::json messages_ = nlohmann::json::array();
    nlohmann::json progress_;
    nlohmann::json unasked_ = nlohmann::json::object();  // how many ranges and files were not asked for
};

}  // namespace qor
