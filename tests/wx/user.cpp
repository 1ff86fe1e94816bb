#include "tests/wx/user.hpp"

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <future>
#include <stdexcept>
#include <thread>

#include "screens/wx/focus.hpp"
#include "screens/wx/text.hpp"
#include "tests/window/hand.hpp"

namespace qor::tests {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 10s;

// A host starts it with the first dialog.
void wait_for_toolkit() {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!wxTheApp || !wxTheApp->GetTraits()) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error("no window came");
        std::this_thread::sleep_for(10ms);
    }
}

wxWindow* find_in(wxWindow* window, const wxString& name) {
    return wxWindow::FindWindowByName(name, window);
}

}  // namespace

wxWindow* window_named(const std::string& control) {
    for (wxWindow* top : wxTopLevelWindows) {
        if (!top->IsShown()) continue;
        if (wxWindow* window = find_in(top, wxString::FromUTF8(control))) return window;
    }
    return nullptr;
}

void User::on_screen(const std::function<void()>& action) {
    std::promise<void> done;
    std::future<void> future = done.get_future();
    wxTheApp->CallAfter([&] {
        try {
            action();
            done.set_value();
        } catch (...) {
            done.set_exception(std::current_exception());
        }
    });
    if (future.wait_for(patience) != std::future_status::ready) {
        std::fprintf(stderr, "the window answers no more\n");
        std::abort();  // the reference would dangle
    }
    future.get();
}

void User::settle() {
    std::this_thread::sleep_for(25ms);  // the toolkit hands on the pointer's moves once a frame
    on_screen([] { gdk_display_sync(gdk_display_get_default()); });
    for (int round = 0; round < 2; ++round) on_screen([] {});
}

bool User::sees(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + patience;
    bool seen = false;
    while (!seen && std::chrono::steady_clock::now() < end) {
        on_screen([&] { seen = condition(); });
        if (!seen) std::this_thread::sleep_for(10ms);
    }
    return seen;
}

bool User::sees_dialog(const std::string& title) {
    return sees([&] {
        bool seen = false;
        GList* windows = gtk_window_list_toplevels();
        for (const GList* at = windows; at; at = at->next) {
            auto* window = static_cast<GtkWindow*>(at->data);
            const char* shown = gtk_window_get_title(window);
            if (shown && shown == title && gtk_window_is_active(window)) seen = true;
        }
        g_list_free(windows);
        return seen;
    });
}

wxPoint User::spot(const std::string& control, wxPoint place) {
    wxPoint spot;
    on_screen([&] {
        const auto& window = window_of<wxWindow>(control);
        const wxPoint at = window.ClientToScreen(place);
        const double scale = window.GetContentScaleFactor();
        spot = {static_cast<int>(at.x * scale), static_cast<int>(at.y * scale)};
    });
    return spot;
}

void User::click(const std::string& control) {
    wxSize size;
    on_screen([&] { size = window_of<wxWindow>(control).GetSize(); });
    click_in(control, {std::min(size.x / 2, 12), size.y / 2});
}

void User::click_in(const std::string& control, wxPoint place, int button) {
    const wxPoint at = spot(control, place);
    hand::move(at.x, at.y);
    settle();
    hand::press(button);
    settle();
    hand::release(button);
    settle();
}

void User::click_again() {
    hand::press();
    hand::release();
    settle();
}

void User::drag(const std::string& control, wxPoint from, wxPoint to) {
    begin_drag(control, from, to);
    end_drag();
}

void User::begin_drag(const std::string& control, wxPoint from, wxPoint to) {
    const wxPoint start = spot(control, from);
    const wxPoint end = spot(control, to);
    hand::move(start.x, start.y);
    settle();
    hand::press();
    settle();
    constexpr int steps = 5;
    for (int step = 1; step <= steps; ++step) {
        hand::move(start.x + (end.x - start.x) * step / steps, start.y + (end.y - start.y) * step / steps);
        settle();
    }
}

void User::end_drag() {
    hand::release();
    settle();
}

void User::key(const std::string& name) {
    hand::key(name);
    settle();
}

void User::type(const std::string& text) {
    hand::type(text);
    settle();
}

std::string User::focus(const Form& form) {
    std::string name;
    on_screen([&] {
        for (const Control* control : form.controls()) {
            const wxWindow* window = window_named(to_utf8(control->name()));
            const auto* dialog = dynamic_cast<wxDialog*>(wxGetTopLevelParent(const_cast<wxWindow*>(window)));
            // Of controls in each other the inner one stands later.
            if (dialog && wx::holds_focus(*dialog, *window)) name = to_utf8(control->name());
        }
    });
    return name;
}

std::string User::shown_text(const std::string& control) {
    std::string text;
    on_screen([&] {
        wxWindow& window = window_of<wxWindow>(control);
        const auto* box = dynamic_cast<wxTextCtrl*>(&window);
        for (wxWindow* child : window.GetChildren()) {
            if (!box) box = dynamic_cast<wxTextCtrl*>(child);
        }
        text = (box ? box->GetValue() : window.GetLabel()).utf8_string();
    });
    return text;
}

void play(const std::function<void()>& command, const CloseDialogs& close, const std::function<void(User&)>& script) {
    std::exception_ptr failure;
    std::exception_ptr raised;
    std::atomic<bool> command_over = false;
    std::atomic<bool> script_over = false;
    std::thread thread([&] {
        User user;
        try {
            wait_for_toolkit();
            script(user);
        } catch (...) {
            failure = std::current_exception();
        }
        while (!command_over) {
            user.on_screen(close);
            std::this_thread::sleep_for(20ms);
        }
        script_over = true;
    });
    try {
        command();
    } catch (...) {
        raised = std::current_exception();
    }
    command_over = true;
    while (!script_over) {  // the script may still ask for something
        wxTheApp->ProcessPendingEvents();
        std::this_thread::sleep_for(1ms);
    }
    thread.join();
    if (raised) std::rethrow_exception(raised);
    if (failure) std::rethrow_exception(failure);
}

void show(Form& form, const CloseDialogs& close, const std::function<void(User&)>& script) {
    play([&] { form.show_modal(); }, close,
         [&](User& user) {
             if (!user.sees_dialog(to_utf8(form.caption()))) throw std::runtime_error("the dialog did not open");
             script(user);
         });
}

}  // namespace qor::tests
