#pragma once

#include <map>
#include <memory>
#include <vector>

#include "screens/wx/form_window.hpp"
#include "screens/wx/native_window.hpp"
#include "ui/screen.hpp"

class wxDialog;

namespace qor {

// Forms in real windows, over the host's window and on its thread, which must be the thread of all windows.
class WxScreen final : public Screen {
  public:
    explicit WxScreen(NativeWindow host_window, wx::Layouts layouts = wx::product_layouts());
    ~WxScreen() override;

    void show_modal(Form& form) override;
    void show_again(Form& form) override;
    void show_modeless(Form& form, Form* owner) override;
    void hide(Form& form) override;
    void unload(Form& form) noexcept override;
    void progress(Form& form, std::int32_t done, std::int32_t total) override;
    MessageAnswer message_box(const MessageBox& message) override;
    std::optional<std::u16string> pick_file(Form* owner, FileDialog& dialog) override;
    std::optional<std::u16string> pick_folder(Form* owner, const std::u16string& title) override;
    std::optional<std::int32_t> pick_color(Form* owner) override;
    double twips_per_pixel() const override { return 15; }  // the toolkit's pixels are 1/96 inch on every screen

    // While a dialog is open its host must not end. close_all cancels the dialogs, the uppermost first; those below
    // follow when the code that showed it has gone on.
    bool dialog_open() const noexcept { return !modal_.empty(); }
    void close_all();

  private:
    struct Modal;

    wx::FormWindow* window_of(const Form& form) const;  // null for a form without one

    std::shared_ptr<wx::FormWindow> make_window(Form& form, wxWindow* parent);
    wxWindow* parent_for(const Form* owner) const;
    int run(wxDialog& dialog);
    void close_soon();

    NativeWindow host_window_;
    wx::Layouts layouts_;
    std::map<const Form*, std::shared_ptr<wx::FormWindow>> windows_;
    std::vector<std::function<void()>> modal_;  // how to cancel each dialog that is open, the uppermost last
    bool closing_ = false;
    std::shared_ptr<void> host_closing_;  // while a dialog is open
};

}  // namespace qor
