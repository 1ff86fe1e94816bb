// What the keyboard does to a form as a whole, where its focus is, and what screen readers call its controls.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/stattext.h>

#include <algorithm>
#include <iterator>

#include "screens/wx/accessible.hpp"
#include "screens/wx/focus.hpp"
#include "screens/wx/form_window.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

bool is_caption(const wxWindow* window) {
    return dynamic_cast<const wxStaticText*>(window) || dynamic_cast<const wxCheckBox*>(window);
}

// The nearest caption that stands before the window, or before what it is in.
wxString caption_before(const wxWindow& window) {
    for (const wxWindow* at = &window; at && !at->IsTopLevel(); at = at->GetParent()) {
        const wxWindowList& siblings = at->GetParent()->GetChildren();
        wxString nearest;
        for (const wxWindow* sibling : siblings) {
            if (sibling == at) break;
            if (is_caption(sibling)) nearest = wxControl::RemoveMnemonics(sibling->GetLabel());
        }
        if (!nearest.empty()) return nearest;
    }
    return {};
}

}  // namespace

void FormWindow::name_for_readers() {
    for (const auto& bound : bound_) {
        wxWindow& window = bound->binding->focused();
        if (window.GetLabel().empty()) name_for_reader(window, caption_before(bound->binding->window()));
    }
}

FormWindow::Bound* FormWindow::button(std::u16string_view caption) const {
    Bound* found = nullptr;
    int count = 0;
    for (const auto& bound : bound_) {
        const auto* button = dynamic_cast<const Button*>(bound->control);
        if (!button) continue;
        if (button->caption() == caption) return bound.get();
        found = bound.get();
        ++count;
    }
    return count == 1 ? found : nullptr;
}

void FormWindow::cancel() {
    user_does([this] {
        if (const Bound* cancel = button(u"Cancel")) {
            static_cast<const Button*>(cancel->control)->press();
        } else {
            form_->unload();
        }
    });
}

void FormWindow::press_key(wxKeyEvent& event) {
    const wxWindow* focus = wxWindow::FindFocus();
    const bool ours =
        !event.HasAnyModifiers() && (!focus || wxGetTopLevelParent(const_cast<wxWindow*>(focus)) == dialog_.get());
    const bool enter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    const Bound* ok = button(u"OK");
    if (ours && event.GetKeyCode() == WXK_ESCAPE && dialog_->IsModal()) {
        cancel();
    } else if (ours && enter && ok && !dynamic_cast<const wxButton*>(focus)) {
        user_does([ok] { static_cast<const Button*>(ok->control)->press(); });
    } else {
        event.Skip();
    }
}

// Of controls that lie in each other, the innermost.
FormWindow::Bound* FormWindow::focused() const {
    Bound* found = nullptr;
    for (const auto& bound : bound_) {
        const wxWindow& window = bound->binding->window();
        const bool inside = !found || found->binding->window().IsDescendant(&const_cast<wxWindow&>(window));
        if (inside && holds_focus(*dialog_, window)) found = bound.get();
    }
    return found;
}

// The form hears of it when the toolkit has settled: a handler may show another window.
void FormWindow::focus_moved() {
    if (focused() != focus_) dialog_->CallAfter([this] { user_does([] {}); });
}

void FormWindow::deliver_focus() {
    Bound* to = focused();
    if (to == focus_) return;
    Bound* left = std::exchange(focus_, to);
    if (left) left->binding->focus_went();
    if (to && form_ && form_->visible()) to->binding->focus_came();
}

}  // namespace qor::wx
