#pragma once

#include "ui/screen.hpp"

namespace qor::excel {

// The system's own dialogs and message boxes, over the host's window. Forms are not drawn by this library: showing one
// raises an error that says so. The job of a modeless one goes on unseen.
class SystemScreen final : public Screen {
  public:
    void show_modal(Form& form) override;
    void show_again(Form&) override {}
    void show_modeless(Form&, Form*) override {}
    void hide(Form&) override {}
    void unload(Form&) noexcept override {}
    void progress(Form&, std::int32_t, std::int32_t) override {}

    MessageAnswer message_box(const MessageBox& message) override;
    std::optional<std::u16string> pick_file(Form* owner, FileDialog& dialog) override;
    std::optional<std::u16string> pick_folder(Form* owner, const std::u16string& title) override;
    std::optional<std::int32_t> pick_color(Form* owner) override;

    double twips_per_pixel() const override;
};

}  // namespace qor::excel
