#pragma once

#include <wx/graphics.h>
#include <wx/window.h>

#include "ui/tree_view.hpp"

namespace qor::wx {

// Paints the rows of a tree. `scale` is pixels a twip; y is the upper edge of the row.
class TreePainter {
  public:
    TreePainter(const wxWindow& window, const TreeView& tree, wxGraphicsContext& paint, double scale);

    void paint_row(const TreeNode& node, double y, double width);
    // Around all rows.
    void paint_frame(const wxSize& size);

  private:
    void paint_fold(const TreeNode& node, double y);
    void paint_picture(const TreeNode& node, double y);
    void paint_text(const TreeNode& node, double y, double width);

    const wxWindow& window_;
    const TreeView& tree_;
    wxGraphicsContext& paint_;
    double indentation_;
    double row_height_;
    double picture_width_;
};

// The font of a node's text.
wxFont font_of(const wxWindow& window, const TreeNode& node);
// Between a picture and its text, in pixels.
double text_gap(const wxWindow& window);

}  // namespace qor::wx
