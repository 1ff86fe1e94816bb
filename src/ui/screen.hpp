#pragma once

#include <cstdint>
#include <optional>

#include "ui/file_dialog.hpp"
#include "ui/message_box.hpp"

namespace qor {

class Form;

// What forms need of a screen. Forms call it; what the user does reaches them through their controls.
class Screen {
  public:
    virtual ~Screen() = default;

    // Comes back when the form is no longer visible, which is looked at each time an event of the form has been
    // handled: a form may hide and show itself again inside one event. What a handler raises is raised on.
    virtual void show_modal(Form& form) = 0;
    // The form hid inside an event and is to be seen again; the wait in show_modal goes on.
    virtual void show_again(Form& form) = 0;
    virtual void show_modeless(Form& form, Form* owner) = 0;
    virtual void hide(Form& form) = 0;
    // The form's window is to go. The form itself may be about to be destroyed.
    virtual void unload(Form& form) noexcept = 0;

    // A job has come so far; a modeless form that shows it is to be painted now, since the job keeps the thread.
    virtual void progress(Form& form, std::int32_t done, std::int32_t total) = 0;

    virtual MessageAnswer message_box(const MessageBox& message) = 0;
    // The user picks a path, a folder's path or a colour (0xBBGGRR) in a dialog of the system, over `owner`'s window.
    // Absent when the user cancels.
    virtual std::optional<std::u16string> pick_file(Form* owner, FileDialog& dialog) = 0;
    virtual std::optional<std::u16string> pick_folder(Form* owner, const std::u16string& title) = 0;
    virtual std::optional<std::int32_t> pick_color(Form* owner) = 0;

    // Twentieths of a point in the width of one pixel: 15 at 96 dots per inch.
    virtual double twips_per_pixel() const = 0;
};

}  // namespace qor
