#pragma once

#include <wx/window.h>

#include <functional>
#include <memory>

#include "ui/control.hpp"

namespace qor::wx {

// A control model and the window that shows it. The window belongs to its parent.
class Binding {
  public:
    Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;
    virtual ~Binding() = default;

    virtual wxWindow& window() const = 0;
    // Which of its windows takes the keyboard.
    virtual wxWindow& focused() const { return window(); }
    // Where the windows go that the layout puts inside.
    virtual wxWindow& inside() const { return window(); }
    // Makes the window show its model. Raises no event, and touches only what differs.
    virtual void show_model() = 0;
    // Called once, when the windows inside stand.
    virtual void completed() {}
    virtual void focus_came() {}
    virtual void focus_went() {}
};

// What a layout may say of a control besides its place.
struct Hints {
    int columns = 1;    // of a group of options
    int width = 0;      // in pixels, at which a label breaks its lines; 0: nowhere
    bool flat = false;  // a tree without levels: nothing is left free in front of its rows
};

// What a binding stands on.
struct Place {
    wxWindow* parent;
    Hints hints;
    // Everything that a user's event does to the form goes through this: it keeps what is raised out of the toolkit.
    std::function<void(const std::function<void()>&)> user_does;
};

}  // namespace qor::wx
