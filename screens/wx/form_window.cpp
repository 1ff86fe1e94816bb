#include "screens/wx/form_window.hpp"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/evtloop.h>
#include <wx/sizer.h>
#include <wx/splitter.h>

#include <algorithm>
#include <map>
#include <stdexcept>

#include "screens/wx/focus.hpp"
#include "screens/wx/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// What is split starts with its left part as wide as that needs to be.
void split(const wxWindow& window) {
    for (wxWindow* child : window.GetChildren()) {
        if (auto* splitter = dynamic_cast<wxSplitterWindow*>(child)) {
            splitter->SetSashPosition(splitter->GetWindow1()->GetBestSize().x);
        }
        split(*child);
    }
}

// What was disabled when the toolkit laid the keyboard's way is not on it; it lays the way anew where windows move.
void look_again(wxWindow& window) {
    const wxWindowList& children = window.GetChildren();
    if (children.GetCount() > 1) children[1]->MoveAfterInTabOrder(children[0]);
    for (wxWindow* child : children) look_again(*child);
}

}  // namespace

FormWindow::FormWindow(Form& form, const Layouts& layouts, wxWindow* parent) : form_(&form) {
    for (Control* control : form.controls()) bound_.push_back(std::make_shared<Bound>(control));
    dialog_.reset(lay_out(layouts, form.layout(), parent,
                          [this](const std::u16string& name, wxWindow* inside, const Hints& hints) -> Binding& {
                              return bind_control(name, inside, hints);
                          }));
    for (const auto& bound : bound_) {
        if (!bound->binding) {
            throw std::logic_error("the layout of " + to_utf8(form.name()) + " has no place for " +
                                   to_utf8(bound->control->name()));
        }
    }
    show_models();
    name_for_readers();
    order_by_tab();
    bind_events();
    dialog_->SetTitle(to_wx(form.caption()));
    dialog_->GetSizer()->SetSizeHints(dialog_.get());
    split(*dialog_);
    focus_first();
    for (const auto& bound : bound_) {
        bound->control->changed = [this, weak = std::weak_ptr<Bound>(bound)] {
            const auto alive = weak.lock();
            if (!alive) return;
            alive->changed = true;
            if (!std::exchange(showing_changes_soon_, true)) dialog_->CallAfter([this] { show_changes(); });
        };
    }
}

Binding& FormWindow::bind_control(const std::u16string& name, wxWindow* parent, const Hints& hints) {
    const auto place = std::ranges::find(bound_, name, [](const auto& bound) { return bound->control->name(); });
    if (place == bound_.end() || (*place)->binding) {
        throw std::logic_error("the layout of " + to_utf8(form_->name()) + " has " + to_utf8(name) +
                               (place == bound_.end() ? ", the form has not" : " twice"));
    }
    const auto does = [this](const std::function<void()>& action) { user_does(action); };
    (*place)->binding = bind(*(*place)->control, {parent, hints, does});
    return *(*place)->binding;
}

// The keyboard goes through the controls as they follow in the form, however the layout places them.
void FormWindow::order_by_tab() {
    std::map<wxWindow*, wxWindow*> last;  // by parent
    for (const auto& bound : bound_) {
        wxWindow& window = bound->binding->window();
        wxWindow*& before = last[window.GetParent()];
        if (before) window.MoveAfterInTabOrder(before);
        before = &window;
    }
}

void FormWindow::focus_first() {
    for (const auto& bound : bound_) {
        wxWindow& window = bound->binding->focused();
        if (!window.CanAcceptFocus()) continue;
        window.SetFocus();
        return;
    }
}

void FormWindow::bind_events() {
    if (const Bound* ok = button(u"OK")) static_cast<wxButton&>(ok->binding->window()).SetDefault();
    dialog_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) { press_key(event); });
    watch_focus(*dialog_, [this] { focus_moved(); });
    dialog_->Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        event.Veto();
        if (dialog_->IsModal()) cancel();
    });
}

void FormWindow::show_modal() {
    const auto self = shared_from_this();
    show_models();
    dialog_->ShowModal();
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void FormWindow::show() {
    show_models();
    dialog_->Show();
}

void FormWindow::show_again() {
    show_models();
    dialog_->wxTopLevelWindow::Show();
    dialog_->Raise();
}

void FormWindow::hide() {
    if (events_ == 0) {
        end();
    } else {
        dialog_->wxTopLevelWindow::Show(false);  // the dialog's own would end ShowModal
    }
}

void FormWindow::end() {
    if (dialog_->IsModal()) {
        dialog_->EndModal(wxID_CANCEL);
    } else {
        dialog_->Hide();
    }
}

void FormWindow::retire() {
    form_ = nullptr;
    hide();
}

void FormWindow::user_does(const std::function<void()>& action) {
    if (!form_) return;
    const auto self = shared_from_this();
    ++events_;
    try {
        deliver_focus();
        if (form_ && form_->visible()) action();
    } catch (...) {
        failure_ = std::current_exception();  // the toolkit's frames below must not be unwound: show_modal raises it on
    }
    --events_;
    show_changes();
    if (events_ == 0 && (failure_ || !form_ || !form_->visible())) end();
    if (self.use_count() == 1) wxTheApp->CallAfter([self] {});  // the window goes when its event is done
}

void FormWindow::show_models() {
    for (const auto& bound : bound_) show_model(*bound);
}

void FormWindow::show_changes() {
    showing_changes_soon_ = false;
    if (!form_) return;
    for (const auto& bound : bound_) {
        if (bound->changed) show_model(*bound);
    }
}

void FormWindow::show_model(Bound& bound) {
    bound.changed = false;
    bound.binding->show_model();
    wxWindow& window = bound.binding->window();
    const bool enabled = bound.control->enabled();
    if (window.IsThisEnabled() == enabled) return;
    // A disabled window keeps no focus, and without one no key reaches the dialog.
    if (!enabled && bound.binding->focused().HasFocus()) window.Navigate();
    window.Enable(enabled);
    look_again(window);
}

void FormWindow::paint_now() {
    show_changes();
    wxEventLoopBase* active = wxEventLoopBase::GetActive();
    wxGUIEventLoop own;
    const wxEventLoopActivator activated(active ? active : &own);
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_UI);
}

}  // namespace qor::wx
