#pragma once

#include <wx/window.h>

#include <functional>
#include <string>

#include "ui/form.hpp"

namespace qor::tests {

// Somebody in front of a dialog, on a thread of their own. Controls are named as in the form.
class User {
  public:
    // Runs on the thread of the windows while that waits for events.
    void on_screen(const std::function<void()>& action);
    // Comes back when what was done so far has reached the form.
    void settle();
    // Whether it came to be within some seconds.
    bool sees(const std::function<bool()>& condition);
    // Waits for a dialog of that title to be in front.
    bool sees_dialog(const std::string& title);

    void click(const std::string& control);
    void click_in(const std::string& control, wxPoint place, int button = 1);
    // At the same place and soon enough to make it a double click.
    void click_again();
    void drag(const std::string& control, wxPoint from, wxPoint to);
    void begin_drag(const std::string& control, wxPoint from, wxPoint to);
    void end_drag();
    void key(const std::string& name);
    void type(const std::string& text);

    std::string focus(const Form& form);  // the control that the focus is in
    std::string shown_text(const std::string& control);

  private:
    wxPoint spot(const std::string& control, wxPoint place);  // on the display
};

// Null where no window has that name.
wxWindow* window_named(const std::string& control);
// The window of that name and type; raises std::runtime_error where there is none.
template <class Window>
Window& window_of(const std::string& control) {
    auto* window = dynamic_cast<Window*>(window_named(control));
    if (!window) throw std::runtime_error("no window of that kind is named " + control);
    return *window;
}

using CloseDialogs = std::function<void()>;

// Shows the form modally while the user plays; a form that is still open then is closed. Raises what the form raises,
// and what the user's script raises.
void show(Form& form, const CloseDialogs& close, const std::function<void(User&)>& script);
// The same for anything that shows windows.
void play(const std::function<void()>& command, const CloseDialogs& close, const std::function<void(User&)>& script);

}  // namespace qor::tests
