// The menu over a tree's window, and the box in which a node's text is typed over.
#include <wx/menu.h>

#include <utility>

#include "screens/wx/text.hpp"
#include "screens/wx/tree/tree_paint.hpp"
#include "screens/wx/tree/tree_window.hpp"

namespace qor::wx {

void TreeWindow::show_popup() {
    popup_shown_ = false;
    const qor::PopupMenu* model = tree_.popup();
    if (!model) return;
    wxMenu menu;
    constexpr int first_id = wxID_HIGHEST + 1;
    int id = first_id;
    for (const qor::PopupMenu::Command& command : model->commands()) {
        if (command.begins_group) menu.AppendSeparator();
        menu.Append(id++, wxControl::EscapeMnemonics(to_wx(command.caption)))->Enable(command.enabled);
    }
    const int chosen = GetPopupMenuSelectionFromUser(menu, std::exchange(popup_place_, wxDefaultPosition));
    user_does_([&] {
        tree_.leave_popup(chosen == wxID_NONE ? std::nullopt
                                              : std::optional(static_cast<std::size_t>(chosen - first_id)));
    });
}

void TreeWindow::show_label_box() {
    const TreeNode* node = tree_.edited();
    if (!node && label_box_) {
        wxTextCtrl* box = std::exchange(label_box_, nullptr);
        if (box->HasFocus()) SetFocus();
        box->Hide();
        CallAfter([box] { box->Destroy(); });  // it may be in an event of its own
    }
    if (!node || label_box_ || !tree_.text_point(*node)) return;
    scroll_to(*node);
    const double left = pixels(tree_.metrics().indentation * node->level() + tree_.metrics().picture_width);
    const wxPoint place(CalcScrolledPosition({static_cast<int>(left), 0}).x, text_of(*node).y);
    label_box_ =
        new wxTextCtrl(this, wxID_ANY, to_wx(node->text()), wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    label_box_->SetFont(font_of(*this, *node));
    const int height = label_box_->GetBestSize().y;
    label_box_->SetSize(place.x, place.y - height / 2, GetClientSize().x - place.x - 2, height);
    label_box_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if (key == WXK_RETURN || key == WXK_NUMPAD_ENTER) {
            end_label_edit(true);
        } else if (key == WXK_ESCAPE) {
            end_label_edit(false);
        } else {
            event.Skip();
        }
    });
    label_box_->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        CallAfter([this] { end_label_edit(true); });
    });
    label_box_->SetFocus();
    label_box_->SelectAll();
}

void TreeWindow::end_label_edit(bool takes_text) {
    if (!label_box_ || !tree_.edited()) return;
    const std::u16string text = from_wx(label_box_->GetValue());
    user_does_([&] { tree_.end_label_edit(takes_text ? std::optional(text) : std::nullopt); });
}

}  // namespace qor::wx
