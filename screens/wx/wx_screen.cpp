#include "screens/wx/wx_screen.hpp"

#include <wx/app.h>

#include "screens/wx/host_window.hpp"
#include "screens/wx/system_dialog.hpp"
#include "screens/wx/toolkit.hpp"

namespace qor {

// For as long as a dialog is open.
struct WxScreen::Modal {
    WxScreen& screen;

    Modal(WxScreen& owner, std::function<void()> cancel) : screen(owner) {
        if (screen.modal_.empty()) screen.host_closing_ = wx::watch_host_closing([&owner] { owner.close_soon(); });
        screen.modal_.push_back(std::move(cancel));
    }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal() {
        screen.modal_.pop_back();
        if (screen.modal_.empty()) {
            screen.closing_ = false;
            screen.host_closing_.reset();
        }
        if (screen.closing_) screen.close_soon();
    }
};

WxScreen::WxScreen(NativeWindow host_window, wx::Layouts layouts)
    : host_window_(std::move(host_window)), layouts_(std::move(layouts)) {
    wx::start_toolkit();
}

WxScreen::~WxScreen() = default;

wx::FormWindow* WxScreen::window_of(const Form& form) const {
    const auto place = windows_.find(&form);
    return place == windows_.end() ? nullptr : place->second.get();
}

std::shared_ptr<wx::FormWindow> WxScreen::make_window(Form& form, wxWindow* parent) {
    const auto place = windows_.find(&form);
    if (place != windows_.end()) return place->second;
    const auto window = std::make_shared<wx::FormWindow>(form, layouts_, parent);
    if (parent) {
        wx::stand_over_parent(window->dialog());
    } else {
        wx::stand_over_host(window->dialog(), host_window_);
    }
    windows_.emplace(&form, window);
    return window;
}

// The window of the form if it is to be seen, else the uppermost dialog; null where there is none but the host's.
wxWindow* WxScreen::parent_for(const Form* owner) const {
    if (owner) {
        const wx::FormWindow* window = window_of(*owner);
        if (window && window->dialog().IsShown()) return &window->dialog();
    }
    wxWindow* uppermost = nullptr;
    for (wxWindow* window : wxTopLevelWindows) {
        const auto* dialog = dynamic_cast<const wxDialog*>(window);
        if (dialog && dialog->IsModal() && dialog->IsShown()) uppermost = window;
    }
    return uppermost;
}

void WxScreen::show_modal(Form& form) {
    const std::shared_ptr<wx::FormWindow> window = make_window(form, parent_for(nullptr));
    const Modal modal(*this, [window] { window->cancel(); });
    window->show_modal();
}

int WxScreen::run(wxDialog& dialog) {
    const Modal modal(*this, [&dialog] { wx::cancel_system_dialog(dialog); });
    // Some have no window before they are shown.
    if (!dialog.GetParent()) wxTheApp->CallAfter([&] { wx::stand_over_host(dialog, host_window_); });
    return dialog.ShowModal();
}

void WxScreen::show_again(Form& form) {
    if (wx::FormWindow* window = window_of(form)) window->show_again();
    if (closing_) close_soon();  // it was away when the dialogs were told to close
}

void WxScreen::show_modeless(Form& form, Form* owner) {
    make_window(form, parent_for(owner))->show();
}

void WxScreen::hide(Form& form) {
    if (wx::FormWindow* window = window_of(form)) window->hide();
}

void WxScreen::unload(Form& form) noexcept {
    const auto place = windows_.find(&form);
    if (place == windows_.end()) return;
    const std::shared_ptr<wx::FormWindow> window = std::move(place->second);
    windows_.erase(place);
    window->retire();
}

void WxScreen::progress(Form& form, std::int32_t, std::int32_t) {
    if (wx::FormWindow* window = window_of(form)) window->paint_now();
}

void WxScreen::close_all() {
    if (modal_.empty()) return;
    closing_ = true;
    const std::function<void()> cancel = modal_.back();
    cancel();
}

void WxScreen::close_soon() {
    wxTheApp->CallAfter([this] { close_all(); });
}

}  // namespace qor
