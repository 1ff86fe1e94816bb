#pragma once

#include <wx/scrolwin.h>
#include <wx/textctrl.h>

#include <functional>

#include "ui/tree_view.hpp"

namespace qor::wx {

// Draws a tree and hands it the pointer and the keys. The tree keeps its sizes in twips; here they are scaled to the
// font, so that what the tree takes for its picture is what the user sees.
class TreeWindow final : public wxScrolled<wxWindow> {
  public:
    TreeWindow(wxWindow* parent, TreeView& tree, std::function<void(const std::function<void()>&)> user_does);

    // Takes over what has changed in the tree.
    void show_tree();
    // For a screen reader: the row that the keyboard is on.
    wxString spoken_row() const;

    // Where a node's picture is, in the window.
    wxPoint picture_of(const TreeNode& node) const;
    wxPoint text_of(const TreeNode& node) const;
    // Where a text is typed over; null while none is.
    wxTextCtrl* label_box() const { return label_box_; }

  protected:
    wxSize DoGetBestClientSize() const override;

  private:
    double pixels(double twips) const { return twips * scale_; }
    int row_height() const { return static_cast<int>(pixels(tree_.metrics().row_height)); }
    wxPoint on_window(const Pointer& place) const;
    Pointer pointer(const wxMouseEvent& event, MouseButton button) const;

    void bind_pointer();
    void press(const wxMouseEvent& event, MouseButton button);
    void release(const wxMouseEvent& event, MouseButton button);
    void move(const wxMouseEvent& event);
    void lose_capture();
    void scroll_while_dragging(const wxPoint& place);
    void set_cursor();

    void bind_keys();
    void press_key(wxKeyEvent& event);
    bool do_command(int key);
    void show_menu_of(const TreeNode& node);
    bool move_selection(int key);
    bool fold(int key);
    void click_picture(const TreeNode& node);
    void scroll_to(const TreeNode& node);

    // As the tree asks for them.
    void show_label_box();
    void end_label_edit(bool takes_text);
    void show_popup();

    void paint();
    wxSize full_size() const;

    TreeView& tree_;
    std::function<void(const std::function<void()>&)> user_does_;
    double scale_;  // pixels a twip
    const TreeNode* shown_selection_ = nullptr;
    int shown_icon_ = 0;
    wxTextCtrl* label_box_ = nullptr;
    bool popup_shown_ = false;
    wxPoint popup_place_ = wxDefaultPosition;  // without one, where the pointer is
    bool second_press_ = false;                // of a double click
};

}  // namespace qor::wx
