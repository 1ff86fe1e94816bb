#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.hpp"
#include "ui/screen.hpp"

namespace qor {

// A dialog without any toolkit: its controls are its data members and its behaviour is in their events. A form lives
// inside the command that shows it. It stays where it was made, since its controls refer to it.
class Form {
  public:
    Form(std::u16string_view name, Screen& screen) : name_(name), screen_(screen) {}
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    const std::u16string& name() const noexcept { return name_; }
    Screen& screen() const noexcept { return screen_; }
    virtual std::u16string_view caption() const noexcept = 0;
    // The layout of its window; forms that differ only in what their controls hold share one.
    virtual std::u16string_view layout() const noexcept { return name_; }
    virtual std::int32_t help_id() const noexcept { return 0; }  // 0: the form has no help

    // In the order in which they stand in the form.
    const std::vector<Control*>& controls() const noexcept { return controls_; }

    // Runs on_load, the first time only. What it raises is raised on and leaves the form not loaded.
    void load();
    // Both load the form if need be. show_modal comes back when the form has been hidden or unloaded. A form that hides
    // in one of its events and shows itself again there is still waited for: that inner call comes back at once.
    void show_modal();
    void show(Form* owner);
    void hide();
    void unload();

    bool loaded() const noexcept { return loaded_; }
    bool visible() const noexcept { return visible_; }

  protected:
    virtual void on_load() {}
    virtual void on_unload() {}

  private:
    friend class Control;

    std::u16string name_;
    Screen& screen_;
    std::vector<Control*> controls_;
    bool loaded_ = false;
    bool visible_ = false;
    bool waited_for_ = false;  // in a show_modal
};

}  // namespace qor
