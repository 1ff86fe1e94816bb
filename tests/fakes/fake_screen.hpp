#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/form.hpp"

namespace qor::fakes {

// A screen that writes down what it is asked for. A modal form is handed to `while_modal` and then comes back.
class FakeScreen final : public Screen {
  public:
    std::vector<std::u16string> log;  // such as u"modal frmWKSum"
    std::function<void(Form&)> while_modal;
    double twips = 15;
    // What the user picks; nothing: cancels.
    std::optional<std::u16string> file;
    std::optional<std::u16string> folder;
    std::optional<std::int32_t> color;

    void show_modal(Form& form) override {
        log.push_back(u"modal " + form.name());
        if (while_modal) while_modal(form);
    }
    void show_modeless(Form& form, Form* owner) override {
        log.push_back(u"modeless " + form.name() + (owner ? u" over " + owner->name() : u""));
    }
    void hide(Form& form) override { log.push_back(u"hide " + form.name()); }
    void unload(Form& form) noexcept override { log.push_back(u"unload " + form.name()); }
    void progress(Form& form, std::int32_t, std::int32_t) override { log.push_back(u"progress " + form.name()); }
    MessageAnswer message_box(const MessageBox& message) override {
        log.push_back(u"message " + message.text);
        return MessageAnswer::ok;
    }
    std::optional<std::u16string> pick_file(Form*, FileDialog& dialog) override {
        log.push_back(u"file " + dialog.title);
        return file;
    }
    std::optional<std::u16string> pick_folder(Form*, const std::u16string& title) override {
        log.push_back(u"folder " + title);
        return folder;
    }
    std::optional<std::int32_t> pick_color(Form*) override {
        log.emplace_back(u"color");
        return color;
    }
    double twips_per_pixel() const override { return twips; }
};

}  // namespace qor::fakes
