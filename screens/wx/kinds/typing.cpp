#include "screens/wx/kinds/typing.hpp"

#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// What a key types, 0 for keys that move, erase ahead or command.
char16_t typed_by(const wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (event.HasAnyModifiers() || key == WXK_TAB || key == WXK_RETURN || key == WXK_ESCAPE || key == WXK_DELETE) {
        return 0;
    }
    return static_cast<char16_t>(event.GetUnicodeKey());
}

}  // namespace

Typing::Typing(TextEntry& entry, wxWindow& parent, const Place& place)
    : entry_(entry), box_(new wxTextCtrl(&parent, wxID_ANY)) {
    box_->Bind(wxEVT_TEXT, [this, user_does = place.user_does](wxCommandEvent&) {
        user_does([&] { entry_.set_text(from_wx(box_->GetValue())); });
    });
    box_->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
        const char16_t typed = typed_by(event);
        if (typed == 0 || entry_.takes(typed)) event.Skip();
    });
}

void Typing::show_model() {
    const wxString text = to_wx(entry_.text());
    if (box_->GetValue() != text) {
        box_->ChangeValue(text);
        box_->SetInsertionPointEnd();
    }
    if (box_->IsEditable() == entry_.locked()) box_->SetEditable(!entry_.locked());
    const wxString tooltip = to_wx(entry_.tooltip());
    if (box_->GetToolTipText() != tooltip) box_->SetToolTip(tooltip);
}

}  // namespace qor::wx
