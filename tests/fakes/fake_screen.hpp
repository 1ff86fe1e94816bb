#pragma once

#include <functional>
#include <string>
#include <vector>

#include "automation/error.hpp"
#include "ui/form.hpp"

namespace qor::fakes {

// A screen that writes down what it is asked for. A modal form is handed to `while_modal` and then comes back.
class FakeScreen final : public Screen {
  public:
    std::vector<std::u16string> log;  // such as u"modal frmWKSum"
    std::function<void(Form&)> while_modal;
    double twips = 15;
    MessageAnswer answer = MessageAnswer::ok;  // to every message
    MessageBox told;                           // the last one
    // What the user picks; nothing: cancels.
    std::optional<std::u16string> file;
    std::optional<std::u16string> folder;
    std::optional<std::int32_t> color;
    std::size_t kind = 0;     // of the file
    bool picks_fail = false;  // every dialog to pick something raises 1004
    // What was offered last.
    FileDialog offered;
    Form* asked_over = nullptr;

    void show_modal(Form& form) override {
        log.push_back(u"modal " + form.name());
        if (while_modal) while_modal(form);
    }
    void show_again(Form& form) override { log.push_back(u"again " + form.name()); }
    void show_modeless(Form& form, Form* owner) override {
        log.push_back(u"modeless " + form.name() + (owner ? u" over " + owner->name() : u""));
    }
    void hide(Form& form) override { log.push_back(u"hide " + form.name()); }
    void unload(Form& form) noexcept override { log.push_back(u"unload " + form.name()); }
    void progress(Form& form, std::int32_t, std::int32_t) override { log.push_back(u"progress " + form.name()); }
    MessageAnswer message_box(const MessageBox& message) override {
        log.push_back(u"message " + message.text);
        told = message;
        return answer;
    }
    std::optional<std::u16string> pick_file(Form* over, FileDialog& dialog) override {
        pick(u"file " + dialog.title, over);
        offered = dialog;
        if (file) dialog.chosen_kind = kind;
        return file;
    }
    std::optional<std::u16string> pick_folder(Form* over, const std::u16string& title) override {
        pick(u"folder " + title, over);
        return folder;
    }
    std::optional<std::int32_t> pick_color(Form* over) override {
        pick(u"color", over);
        return color;
    }
    double twips_per_pixel() const override { return twips; }

  private:
    void pick(std::u16string what, Form* over) {
        if (picks_fail) throw Error(1004, u"Screen", u"No dialog.");
        log.push_back(std::move(what));
        asked_over = over;
    }
};

}  // namespace qor::fakes
