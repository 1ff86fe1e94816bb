#include "screens/wx/tree/tree_paint.hpp"

#include <wx/brush.h>
#include <wx/pen.h>
#include <wx/settings.h>

#include <cmath>

#include "screens/wx/colours.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

constexpr int picture_checked = 2;

wxColour system(wxSystemColour colour) {
    return wxSystemSettings::GetColour(colour);
}

// Between two colours, `part` of the way to the second.
wxColour mixed(const wxColour& from, const wxColour& to, double part) {
    const auto mix = [part](unsigned char first, unsigned char second) {
        return static_cast<unsigned char>(std::lround(first + (second - first) * part));
    };
    return {mix(from.Red(), to.Red()), mix(from.Green(), to.Green()), mix(from.Blue(), to.Blue())};
}

}  // namespace

wxFont font_of(const wxWindow& window, const TreeNode& node) {
    wxFont font = window.GetFont();
    if (node.bold()) font.MakeBold();
    if (node.italic()) font.MakeItalic();
    return font;
}

double text_gap(const wxWindow& window) {
    return window.GetCharWidth() * 0.6;
}

TreePainter::TreePainter(const wxWindow& window, const TreeView& tree, wxGraphicsContext& paint, double scale)
    : window_(window),
      tree_(tree),
      paint_(paint),
      indentation_(tree.metrics().indentation * scale),
      row_height_(std::floor(tree.metrics().row_height * scale)),
      picture_width_(tree.metrics().picture_width * scale) {}

void TreePainter::paint_row(const TreeNode& node, double y, double width) {
    paint_text(node, y, width);
    paint_picture(node, y);
    if (node.first_child()) paint_fold(node, y);
}

void TreePainter::paint_frame(const wxSize& size) {
    const wxColour line = mixed(system(wxSYS_COLOUR_WINDOW), system(wxSYS_COLOUR_WINDOWTEXT), 0.25);
    paint_.SetPen(wxPen(line));
    paint_.SetBrush(wxNullGraphicsBrush);
    paint_.DrawRectangle(0.5, 0.5, size.x - 1, size.y - 1);
}

// A small triangle: to the right while the branch is closed, downwards while it is open.
void TreePainter::paint_fold(const TreeNode& node, double y) {
    const double size = std::round(picture_width_ * 0.3);
    const double x = std::round(indentation_ * (node.level() - 0.5));
    const double middle = std::round(y + row_height_ / 2);
    wxGraphicsPath path = paint_.CreatePath();
    if (node.expanded()) {
        path.MoveToPoint(x - size, middle - size / 2);
        path.AddLineToPoint(x + size, middle - size / 2);
        path.AddLineToPoint(x, middle + size / 2);
    } else {
        path.MoveToPoint(x - size / 2, middle - size);
        path.AddLineToPoint(x - size / 2, middle + size);
        path.AddLineToPoint(x + size / 2, middle);
    }
    path.CloseSubpath();
    paint_.SetBrush(wxBrush(mixed(system(wxSYS_COLOUR_WINDOW), system(wxSYS_COLOUR_WINDOWTEXT), 0.65)));
    paint_.SetPen(wxNullGraphicsPen);
    paint_.FillPath(path);
}

// A check box as wide as the tree takes its pictures for.
void TreePainter::paint_picture(const TreeNode& node, double y) {
    const double side = std::round(picture_width_) - 1;
    const double left = std::round(indentation_ * node.level()) + 0.5;
    const double top = std::round(y + (row_height_ - side) / 2) + 0.5;
    const bool checked = node.image() == picture_checked;
    const wxColour ground = system(wxSYS_COLOUR_WINDOW);
    const wxColour ink = system(wxSYS_COLOUR_WINDOWTEXT);
    const wxColour accent = window_.IsEnabled() ? system(wxSYS_COLOUR_HIGHLIGHT) : mixed(ground, ink, 0.4);
    paint_.SetBrush(wxBrush(checked ? accent : ground));
    paint_.SetPen(wxPen(checked ? accent : mixed(ground, ink, window_.IsEnabled() ? 0.55 : 0.25)));
    paint_.DrawRoundedRectangle(left, top, side, side, side * 0.18);
    if (!checked) return;
    wxGraphicsPath mark = paint_.CreatePath();
    mark.MoveToPoint(left + side * 0.22, top + side * 0.52);
    mark.AddLineToPoint(left + side * 0.42, top + side * 0.72);
    mark.AddLineToPoint(left + side * 0.78, top + side * 0.28);
    paint_.SetPen(paint_.CreatePen(wxGraphicsPenInfo(readable_on(accent)).Width(side * 0.14).Cap(wxCAP_ROUND)));
    paint_.StrokePath(mark);
}

void TreePainter::paint_text(const TreeNode& node, double y, double width) {
    const bool selected = tree_.selected() == &node;
    const bool target = tree_.drop_highlight() == &node;
    const double gap = text_gap(window_);
    const double left = std::round(indentation_ * node.level() + picture_width_ + gap / 2);
    const wxColour highlight = system(wxSYS_COLOUR_HIGHLIGHT);
    const wxString text = to_wx(node.text());

    wxColour ground = system(wxSYS_COLOUR_WINDOW);
    wxColour ink = system(window_.IsEnabled() ? wxSYS_COLOUR_WINDOWTEXT : wxSYS_COLOUR_GRAYTEXT);
    paint_.SetPen(wxNullGraphicsPen);
    if (selected || target) {
        ground = target || window_.HasFocus() ? highlight : mixed(ground, highlight, 0.35);
        ink = readable_on(ground);
        paint_.SetBrush(wxBrush(ground));
        paint_.DrawRectangle(left, y, width - left, row_height_);
    }
    const wxFont font = font_of(window_, node);
    paint_.SetFont(font, ink);
    double text_width = 0;
    double text_height = 0;
    paint_.GetTextExtent(text, &text_width, &text_height);
    if (node.back_color()) {
        ground = to_wx(*node.back_color());
        ink = readable_on(ground);
        paint_.SetBrush(wxBrush(ground));
        paint_.DrawRectangle(left, y + 1, std::ceil(text_width + gap), row_height_ - 2);
    }
    if (node.fore_color() && !selected && !target) ink = to_wx(*node.fore_color());
    paint_.SetFont(font, ink);
    paint_.DrawText(text, left + gap / 2, std::round(y + (row_height_ - text_height) / 2));
}

}  // namespace qor::wx
