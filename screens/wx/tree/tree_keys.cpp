// What the keyboard does in a tree's window.
#include <algorithm>
#include <map>

#include "screens/wx/tree/tree_window.hpp"

namespace qor::wx {
namespace {

// The state after the key: the toolkit tells the one before it.
int shift_state(const wxKeyEvent& event, bool down) {
    const auto held = [&](bool before, int key) { return event.GetKeyCode() == key ? down : before; };
    return (held(event.ShiftDown(), WXK_SHIFT) ? 1 : 0) + (held(event.ControlDown(), WXK_CONTROL) ? 2 : 0) +
           (held(event.AltDown(), WXK_ALT) ? 4 : 0);
}

}  // namespace

void TreeWindow::bind_keys() {
    Bind(wxEVT_KEY_DOWN, &TreeWindow::press_key, this);
    Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        user_does_([&] { tree_.release_key(shift_state(event, false)); });
        event.Skip();
    });
    // Before the dialog takes it for its Cancel button.
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() != WXK_ESCAPE || tree_.drag_icon() == 0) {
            event.Skip();
            return;
        }
        if (HasCapture()) ReleaseMouse();
        lose_capture();
    });
}

void TreeWindow::press_key(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    user_does_([&] { tree_.press_key(shift_state(event, true)); });
    if (key == WXK_TAB) {
        Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
        return;
    }
    bool taken = false;
    if (!event.HasAnyModifiers()) {
        user_does_([&] {
            if (key == WXK_SPACE && tree_.selected()) {
                click_picture(*tree_.selected());
                taken = true;
            } else {
                taken = move_selection(key) || fold(key) || do_command(key);
            }
        });
    }
    if (event.GetModifiers() == wxMOD_SHIFT && key == WXK_F10) user_does_([&] { taken = do_command(WXK_MENU); });
    if (!taken) event.Skip();
}

bool TreeWindow::move_selection(int key) {
    const int page = std::max(1, GetClientSize().y / row_height() - 1);
    constexpr int far = 1 << 24;
    const std::map<int, int> moves{{WXK_UP, -1},         {WXK_DOWN, 1},    {WXK_PAGEUP, -page},
                                   {WXK_PAGEDOWN, page}, {WXK_HOME, -far}, {WXK_END, far}};
    const auto move = moves.find(key);
    const auto rows = tree_.visible_rows();
    if (move == moves.end() || rows.empty()) return false;
    const auto current = std::ranges::find(rows, tree_.selected());
    const auto row = current == rows.end() ? 0 : static_cast<int>(current - rows.begin()) + move->second;
    tree_.select(rows[static_cast<std::size_t>(std::clamp(row, 0, static_cast<int>(rows.size()) - 1))]);
    return true;
}

// Right opens a branch and then goes into it, left closes it and then goes out of it.
bool TreeWindow::fold(int key) {
    TreeNode* node = tree_.selected();
    if (!node || (key != WXK_LEFT && key != WXK_RIGHT)) return false;
    const bool open = key == WXK_RIGHT;
    if (node->first_child() && node->expanded() != open) {
        node->set_expanded(open);
    } else if (TreeNode* next = open ? node->first_child() : node->parent()) {
        tree_.select(next);
    }
    return true;
}

bool TreeWindow::do_command(int key) {
    const TreeNode* node = tree_.selected();
    if (!node) return false;
    switch (key) {
        case WXK_DELETE:
        case WXK_NUMPAD_DELETE:
            tree_.delete_selected();
            return true;
        case WXK_F2:
            if (tree_.editable()) tree_.start_label_edit();
            return true;
        case WXK_MENU:
        case WXK_WINDOWS_MENU:
            show_menu_of(*node);
            return true;
        default:
            return false;
    }
}

// Through the pointer, so that the tree's own rules decide.
void TreeWindow::show_menu_of(const TreeNode& node) {
    const auto place = tree_.text_point(node);
    if (!place) return;
    popup_place_ = text_of(node);
    Pointer pointer = *place;
    tree_.move_pointer(pointer);
    pointer.button = MouseButton::right;
    tree_.press_pointer(pointer);
    tree_.release_pointer(pointer);
}

// Through the pointer, so that the tree's own rule for a click on a picture decides.
void TreeWindow::click_picture(const TreeNode& node) {
    const auto place = tree_.picture_point(node);
    if (!place) return;
    Pointer pointer = *place;
    tree_.move_pointer(pointer);
    pointer.button = MouseButton::left;
    tree_.press_pointer(pointer);
    tree_.release_pointer(pointer);
}

void TreeWindow::scroll_to(const TreeNode& node) {
    const auto rows = tree_.visible_rows();
    const auto place = std::ranges::find(rows, &node);
    if (place == rows.end()) return;
    const int row = static_cast<int>(place - rows.begin());
    const int first = GetViewStart().y;
    const int shown = std::max(1, GetClientSize().y / row_height());
    if (row < first) Scroll(wxDefaultCoord, row);
    if (row >= first + shown) Scroll(wxDefaultCoord, row - shown + 1);
}

}  // namespace qor::wx
