// What the pointer does in a tree's window.
#include <wx/cursor.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

#include "screens/wx/keep_pointer.hpp"
#include "screens/wx/tree/tree_window.hpp"

namespace qor::wx {
namespace {

constexpr int copy_picture = 4;  // 3 is the picture of a move

// A sheet of paper that goes with the pointer, with a plus for a copy.
wxCursor drag_cursor(bool copy) {
    constexpr int side = 24;
    wxBitmap bitmap(side, side);
    {
        wxMemoryDC paint(bitmap);
        paint.SetBackground(*wxLIGHT_GREY_BRUSH);
        paint.Clear();
        paint.SetPen(*wxBLACK_PEN);
        paint.SetBrush(*wxWHITE_BRUSH);
        const wxPoint arrow[] = {{0, 0}, {0, 13}, {4, 10}, {9, 10}};
        paint.DrawPolygon(4, arrow);
        paint.DrawRectangle(8, 13, 15, 8);
        paint.DrawLine(10, 17, 17, 17);
        if (copy) {
            paint.DrawLine(17, 4, 17, 11);
            paint.DrawLine(14, 7, 21, 7);
        }
    }
    wxImage image = bitmap.ConvertToImage();
    image.SetMaskColour(wxLIGHT_GREY->Red(), wxLIGHT_GREY->Green(), wxLIGHT_GREY->Blue());
    return wxCursor(image);
}

}  // namespace

void TreeWindow::bind_pointer() {
    Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& event) { press(event, MouseButton::left); });
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent& event) {
        press(event, MouseButton::left);
        second_press_ = true;
    });
    for (const auto& pressed : {wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        Bind(pressed, [this](wxMouseEvent& event) { press(event, MouseButton::right); });
    }
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) { release(event, MouseButton::left); });
    Bind(wxEVT_RIGHT_UP, [this](wxMouseEvent& event) { release(event, MouseButton::right); });
    Bind(wxEVT_MOTION, [this](wxMouseEvent& event) { move(event); });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { lose_capture(); });
}

Pointer TreeWindow::pointer(const wxMouseEvent& event, MouseButton button) const {
    const wxPoint place = CalcUnscrolledPosition(event.GetPosition());
    return {.x = place.x / scale_,
            .y = static_cast<double>(place.y) / row_height() * tree_.metrics().row_height,
            .button = button,
            .shift = (event.ShiftDown() ? 1 : 0) + (event.ControlDown() ? 2 : 0) + (event.AltDown() ? 4 : 0)};
}

void TreeWindow::press(const wxMouseEvent& event, MouseButton button) {
    SetFocus();
    keep_pointer(*this);
    user_does_([&] {
        // The tree goes by the last move, and the rows may have changed under a pointer that stands still.
        tree_.move_pointer(pointer(event, MouseButton::none));
        tree_.press_pointer(pointer(event, button));
    });
}

void TreeWindow::release(const wxMouseEvent& event, MouseButton button) {
    if (HasCapture()) ReleaseMouse();
    const bool twice = std::exchange(second_press_, false) && button == MouseButton::left;
    user_does_([&] {
        tree_.release_pointer(pointer(event, button));
        if (twice) tree_.double_click();
    });
}

void TreeWindow::move(const wxMouseEvent& event) {
    const MouseButton button = event.LeftIsDown()    ? MouseButton::left
                               : event.RightIsDown() ? MouseButton::right
                                                     : MouseButton::none;
    user_does_([&] {
        tree_.move_pointer(pointer(event, button));
        if (tree_.drag_icon() != 0) scroll_while_dragging(event.GetPosition());
    });
}

// Something else took the pointer.
void TreeWindow::lose_capture() {
    user_does_([&] { tree_.cancel_drag(); });
}

void TreeWindow::scroll_while_dragging(const wxPoint& place) {
    const int lines = place.y < 0 ? -1 : place.y >= GetClientSize().y ? 1 : 0;
    if (lines != 0) Scroll(wxDefaultCoord, GetViewStart().y + lines);
}

void TreeWindow::set_cursor() {
    const int icon = tree_.drag_icon();
    if (icon == shown_icon_) return;
    shown_icon_ = icon;
    SetCursor(icon == 0 ? wxNullCursor : drag_cursor(icon == copy_picture));
}

}  // namespace qor::wx
