#pragma once

#include <wx/dialog.h>

#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "screens/wx/binding.hpp"
#include "screens/wx/layout.hpp"
#include "ui/button.hpp"
#include "ui/form.hpp"

namespace qor::wx {

// The window of one form: made from the form's layout, bound to its controls. It may outlive the form by the rest of
// the event in which the form unloads itself; from then on it touches none of the form's controls.
class FormWindow final : public std::enable_shared_from_this<FormWindow> {
  public:
    // Raises std::logic_error where layout and controls do not fit one for one.
    FormWindow(Form& form, const Layouts& layouts, wxWindow* parent);
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    ~FormWindow() = default;

    // Comes back when the form is no longer visible; raises what a handler raised.
    void show_modal();
    void show();
    // The form hid itself inside an event, and is to be seen again.
    void show_again();
    // At once for the eye; the wait in show_modal ends when the event that is being handled is done.
    void hide();
    // The form is gone, or about to go.
    void retire();
    // What the user does to leave: the Cancel button; without one, the form unloads.
    void cancel();
    // Paints what has changed, though the thread stays with the job that changed it.
    void paint_now();

    wxDialog& dialog() const { return *dialog_; }

  private:
    struct Bound {
        Control* control;
        std::unique_ptr<Binding> binding;
        bool changed = true;  // since the window was last made to show it
    };

    Binding& bind_control(const std::u16string& name, wxWindow* parent, const Hints& hints);
    void order_by_tab();
    void name_for_readers();
    void focus_first();
    void bind_events();

    void user_does(const std::function<void()>& action);
    void press_key(wxKeyEvent& event);
    void focus_moved();
    void deliver_focus();
    void end();
    void show_models();
    void show_changes();
    void show_model(Bound& bound);

    Bound* focused() const;  // as the toolkit says
    // The one of that caption, else the only one of the form; null when there is neither.
    Bound* button(std::u16string_view caption) const;

    Form* form_;
    std::vector<std::shared_ptr<Bound>> bound_;  // in the order of the form's controls
    std::unique_ptr<wxDialog> dialog_;
    Bound* focus_ = nullptr;  // as the form knows it
    int events_ = 0;          // that are being handled
    bool showing_changes_soon_ = false;
    std::exception_ptr failure_;
};

}  // namespace qor::wx
