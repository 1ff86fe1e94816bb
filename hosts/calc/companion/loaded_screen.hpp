#pragma once

#include "hosts/calc/uno/context.hpp"
#include "screens/wx/library/screen_library.hpp"

namespace qor::calc {

// The screen with real windows, from a library beside this one. It is loaded when the first dialog is to be shown:
// functions, and an office without a screen, need no toolkit. Where it cannot be, a form raises 1004 that says why.
class LoadedScreen final : public Screen {
  public:
    explicit LoadedScreen(Context context) : context_(std::move(context)) {}

    void show_modal(Form& form) override { screen().show_modal(form); }
    void show_again(Form& form) override { screen().show_again(form); }
    void show_modeless(Form& form, Form* owner) override { screen().show_modeless(form, owner); }
    void hide(Form& form) override { screen().hide(form); }
    void unload(Form& form) noexcept override;
    void progress(Form& form, std::int32_t done, std::int32_t total) override { screen().progress(form, done, total); }
    MessageAnswer message_box(const MessageBox& message) override { return screen().message_box(message); }
    std::optional<std::u16string> pick_file(Form* owner, FileDialog& dialog) override {
        return screen().pick_file(owner, dialog);
    }
    std::optional<std::u16string> pick_folder(Form* owner, const std::u16string& title) override {
        return screen().pick_folder(owner, title);
    }
    std::optional<std::int32_t> pick_color(Form* owner) override { return screen().pick_color(owner); }
    double twips_per_pixel() const override { return 15; }

    // Tells the dialogs that are open to close; whether there were any.
    bool close_dialogs();

  private:
    Screen& screen();

    Context context_;
    WindowedScreen loaded_;
};

}  // namespace qor::calc
