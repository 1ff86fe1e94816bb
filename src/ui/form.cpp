#include "ui/form.hpp"

namespace qor {

Form::~Form() {
    if (loaded_) screen_.unload(*this);
}

void Form::load() {
    if (loaded_) return;
    loaded_ = true;
    try {
        on_load();
    } catch (...) {
        loaded_ = false;
        throw;
    }
}

void Form::show_modal() {
    load();
    if (!loaded_) return;  // it unloaded itself while it was loading
    visible_ = true;
    if (waited_for_) {
        screen_.show_again(*this);
        return;
    }
    const struct Wait {
        bool& lasts;
        explicit Wait(bool& flag) : lasts(flag) { lasts = true; }
        ~Wait() { lasts = false; }
    } wait(waited_for_);
    screen_.show_modal(*this);
}

void Form::show(Form* owner) {
    load();
    if (!loaded_) return;
    visible_ = true;
    screen_.show_modeless(*this, owner);
}

void Form::hide() {
    if (!visible_) return;
    visible_ = false;
    screen_.hide(*this);
}

void Form::unload() {
    if (!loaded_) return;
    loaded_ = false;
    visible_ = false;
    on_unload();
    screen_.unload(*this);
}

}  // namespace qor
