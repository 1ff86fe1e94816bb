// What the keyboard does in a tree's window.
#include <algorithm>
#include <map>

#include "screens/wx/tree/tree_window.hpp"

namespace qor::wx {

void TreeWindow::press_key(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
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
                taken = move_selection(key) || fold(key);
            }
        });
    }
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
